#include "Views/list/ObjectsList.h"

#include "Toolkit/base/Exception.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/inside/EditorLink.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/list/inside/ObjectsListCache.h"
#include "Views/list/inside/Rows.h"

namespace
{

constexpr UINT kControlID = 0xE900;
constexpr DWORD kStyle =
    WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | LVS_ICON | LVS_OWNERDATA | LVS_EDITLABELS | LVS_SHOWSELALWAYS;
static_assert(kStyle == 0x46001208);
constexpr int kLoadTries = 10;

// Without memory for the members there are none, and the user has been told. True when names alone order them.
bool ReadMembers(IAtomContainer* pContainer, const std::function<bool(IAtom*)>& isShown, views::AtomComparator compare,
                 UINT nOrder, views::AtomArray& atoms)
{
    try {
        atoms = views::AtomArray(pContainer->GetCount());
        if (!atoms.empty())
            pContainer->GetAtoms(0, static_cast<UINT>(atoms.size()), atoms.front().Receive(), IID_IAtom);
        if (isShown)
            std::erase_if(atoms, [&](const auto& pAtom) { return pAtom && !isShown(pAtom.Get()); });
        return views::OrderMembers(atoms, compare, nOrder);
    } catch (CMemoryException& e) {
        e.ReportError();
        atoms.clear();
        return false;
    }
}

} // namespace

BEGIN_MESSAGE_MAP(CObjectsList, CListCtrl)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_NOTIFY_REFLECT(NM_DBLCLK, OnDblclk)
    ON_NOTIFY_REFLECT(LVN_GETDISPINFO, OnObjectsGetDispinfo)
    ON_WM_CONTEXTMENU()
    ON_NOTIFY_REFLECT(LVN_BEGINLABELEDIT, OnBeginLabelEdit)
    ON_NOTIFY_REFLECT(LVN_ENDLABELEDIT, OnEndLabelEdit)
    ON_NOTIFY_REFLECT(LVN_BEGINDRAG, OnBeginDrag)
    ON_WM_RBUTTONDOWN()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDBLCLK()
    ON_NOTIFY_REFLECT(LVN_ITEMCHANGED, OnItemChanged)
    ON_WM_SETFOCUS()
    ON_NOTIFY_REFLECT(LVN_ITEMCHANGING, OnItemChanging)
    ON_WM_KILLFOCUS()
    ON_WM_SHOWWINDOW()
    ON_NOTIFY_REFLECT(LVN_ODCACHEHINT, OnOdCacheHint)
    ON_NOTIFY_REFLECT(LVN_ODFINDITEM, OnOdFindItem)
END_MESSAGE_MAP()

CObjectsList::CObjectsList(UINT nPaneKind, UINT nResourceID, int bPassive)
    : m_pRows(std::make_unique<views::Rows>(&CompareFunc)),
      m_pCache(std::make_unique<CObjectsListCache>()),
      m_pSpareCache(std::make_unique<CObjectsListCache>()),
      m_nPaneKind(nPaneKind),
      m_nResourceID(nResourceID),
      m_pEditor(std::make_unique<views::EditorLink>(*this, *this, bPassive))
{}

// A window that is still there goes now, while it can still take its handler from the editor. The derived class with
// its hooks is gone already: records left behind are dropped without them.
CObjectsList::~CObjectsList()
{
    m_pCache->RemoveAll();
    DestroyWindow();
}

BOOL CObjectsList::Create(CWnd* pParent)
{
    return CListCtrl::Create(0, CRect(), pParent, kControlID);
}

BOOL CObjectsList::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CListCtrl::PreCreateWindow(cs))
        return FALSE;
    cs.style = kStyle;
    cs.dwExStyle |= WS_EX_CLIENTEDGE;
    return TRUE;
}

int CObjectsList::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CListCtrl::OnCreate(lpCreateStruct) == -1)
        return -1;

    m_bSync = TRUE;
    m_bClosing = false;
    m_bPaneShown = FALSE; // a former window's
    const auto pEditor = m_pEditor->GetEditor();
    if (!m_pEditor->Join(pEditor.Get()))
        return -1;
    m_dropTarget.Register(this);
    UpdateIndexes();
    return 0;
}

void CObjectsList::OnDestroy()
{
    m_bClosing = true;
    m_pEditor->Leave();
    CListCtrl::OnDestroy();
    ClearContext();
}

void CObjectsList::OnShowWindow(BOOL bShow, UINT nStatus)
{
    Arrange(LVA_DEFAULT);
    CListCtrl::OnShowWindow(bShow, nStatus);
}

BOOL CObjectsList::SetRootAtom(IAtom* pRoot)
{
    if (!pRoot)
        return FALSE;
    CStubRef<IAtomContainer> pContainer;
    pRoot->GetContainer(pContainer.Receive(), IID_IAtomContainer);
    return OnAtomEntered(pRoot, pContainer.Get());
}

// The members of pAtom become the rows, unless whoever is asked or told on the way has something else shown.
BOOL CObjectsList::OnAtomEntered(IAtom* pAtom, IAtomContainer*)
{
    if (!IsListening())
        return TRUE;

    const auto pHeld = CStubRef<IAtom>::Share(pAtom); // it may have lived by the view's references, which go
    const unsigned nLoad = ClearContext();
    auto pContainer = CStubRef<IAtomContainer>::From(pAtom);
    if (nLoad != m_nLoads)
        return TRUE;
    m_pContainer = std::move(pContainer);
    if (!m_pContainer)
        RemovePane();
    else if (LoadMembers(nLoad))
        ShowPane();
    return TRUE;
}

// Members that come or go while they are read are read anew; not for ever, for a host may announce some each time.
bool CObjectsList::LoadMembers(unsigned nLoad)
{
    const auto pContainer = ShareContainer();
    views::AtomArray atoms;
    bool bByName = false;
    const UINT nOrder = m_nOrder;
    const views::AtomComparator compare = ComparatorFor(nOrder);
    for (int nTries = 0; nTries < kLoadTries && nLoad == m_nLoads && (nTries == 0 || m_bMembersChanged); ++nTries) {
        m_bLoading = true;
        m_bMembersChanged = false;
        bByName = ReadMembers(pContainer.Get(), m_isShown, compare, nOrder, atoms);
    }
    if (nLoad != m_nLoads)
        return false;
    m_bLoading = false;
    m_pRows->SetComparator(compare);
    m_pRows->Show(std::move(atoms), bByName);
    SetItemCount(m_pRows->GetCount());
    return nLoad == m_nLoads;
}

void CObjectsList::ShowPane()
{
    const auto pEditor = m_bPaneShown ? nullptr : m_pEditor->GetEditor();
    if (!pEditor)
        return;
    m_bPaneShown = TRUE;
    m_pEditor->AddPane(pEditor.Get(), m_nPaneKind, m_nResourceID, m_nResourceID, "");
}

void CObjectsList::RemovePane()
{
    const auto pEditor = m_bPaneShown ? m_pEditor->GetEditor() : nullptr;
    if (!pEditor)
        return;
    m_bPaneShown = FALSE;
    pEditor->RemovePane(m_nPaneKind, m_hWnd);
}

unsigned CObjectsList::ClearContext()
{
    const unsigned nLoad = ++m_nLoads;
    MoveLabelEdit(-1);
    if (nLoad != m_nLoads)
        return nLoad;
    UncacheAll();
    SetItemCount(0);
    m_pCache->RemoveAll();
    m_nCacheFrom = m_nCacheTo = 0;
    m_bLoading = false;
    {
        const auto pContainer = std::move(m_pContainer); // goes after the atoms
        const auto atoms = m_pRows->Clear();
    }
    if (nLoad == m_nLoads)
        OnClearContext();
    return nLoad;
}

void CObjectsList::GoToItem(UINT nItem)
{
    const HELDPAIR pair = HoldPair(static_cast<int>(nItem));
    if (!pair)
        return;
    if (const auto pEditor = m_pEditor->GetEditor())
        pEditor->NotifyHandlers(nullptr, &IAEStateHandler::OnAtomEntered, pair.pAtom.Get(), pair.pContainer.Get(), 0);
}

OBJPAIR* CObjectsList::PairAt(int nItem) const
{
    IAtom* const pAtom = m_pRows->At(nItem);
    if (!pAtom)
        return nullptr;
    m_pair = {pAtom, m_pContainer.Get()};
    return &m_pair;
}

unsigned long CObjectsList::GetItemData(int nItem) const
{
    return reinterpret_cast<unsigned long>(PairAt(nItem));
}

CObjectsList::HELDPAIR CObjectsList::HoldPair(int nItem) const
{
    const OBJPAIR* pPair = PairAt(nItem);
    return pPair ? HELDPAIR::Share(pPair->pAtom, pPair->pContainer) : HELDPAIR();
}

CStubRef<IAtomContainer> CObjectsList::ContainerInRow(int nItem) const
{
    return CStubRef<IAtomContainer>::From(HoldPair(nItem).pAtom.Get());
}
