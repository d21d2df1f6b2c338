#include "Views/list/ObjectsList.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/graphics/Resources.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/IconHolder.h"
#include "Views/host/Services.h"
#include "Views/list/MemberOrder.h"

namespace
{

constexpr UINT kControlID = 0xE900;
constexpr DWORD kStyle =
    WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | LVS_ICON | LVS_OWNERDATA | LVS_EDITLABELS | LVS_SHOWSELALWAYS;
static_assert(kStyle == 0x46001208);

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
    ON_WM_RBUTTONUP()
    ON_WM_LBUTTONUP()
    ON_NOTIFY_REFLECT(LVN_ITEMCHANGED, OnItemChanged)
    ON_WM_SETFOCUS()
    ON_NOTIFY_REFLECT(LVN_ITEMCHANGING, OnItemChanging)
    ON_WM_KILLFOCUS()
    ON_WM_SHOWWINDOW()
    ON_NOTIFY_REFLECT(LVN_ODCACHEHINT, OnOdCacheHint)
END_MESSAGE_MAP()

CObjectsList::CObjectsList(UINT nPaneKind, UINT nResourceID, int bPassive)
    : m_nPaneKind(nPaneKind), m_nResourceID(nResourceID), m_bPassive(bPassive)
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

LRESULT CObjectsList::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return CListCtrl::WindowProc(message, wParam, lParam);
}

CStubRef<IAtomEditor> CObjectsList::EditorToTell() const
{
    return CStubRef<IAtomEditor>::Adopt(m_bPassive ? nullptr : GetAtomEditor());
}

int CObjectsList::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CListCtrl::OnCreate(lpCreateStruct) == -1)
        return -1;

    m_bSync = TRUE;
    if (const auto pEditor = EditorToTell())
        m_dwHandlerCookie = pEditor->RegisterHandler(m_hWnd, this);
    m_dropTarget.Register(this);
    UpdateIndexes();
    return 0;
}

void CObjectsList::OnDestroy()
{
    if (const auto pEditor = EditorToTell())
        pEditor->UnregisterHandler(m_dwHandlerCookie);
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

// The members of pAtom become the rows. pAtom must not live by this view's references, which go first.
BOOL CObjectsList::OnAtomEntered(IAtom* pAtom, IAtomContainer*)
{
    if (!m_bSync)
        return TRUE;

    ClearContext();
    m_pContainer.QueryFrom(pAtom);
    if (m_pContainer) {
        LoadMembers();
        ShowPane();
    } else {
        RemovePane();
    }
    return TRUE;
}

// Without memory for the rows there are none, and the user has been told.
void CObjectsList::LoadMembers()
{
    try {
        views::AtomArray atoms(m_pContainer->GetCount());
        if (!atoms.empty())
            m_pContainer->GetAtoms(0, static_cast<UINT>(atoms.size()), atoms.front().Receive(), IID_IAtom);
        const bool bByName = views::OrderMembers(atoms, &CompareFunc);
        m_atoms = std::move(atoms);
        m_nOrdered = bByName ? static_cast<int>(m_atoms.size()) : 0;
    } catch (CMemoryException& e) {
        e.ReportError();
    }
    SetItemCount(static_cast<int>(m_atoms.size()));
}

void CObjectsList::ShowPane()
{
    if (m_bPaneShown)
        return;
    const auto pEditor = EditorToTell();
    if (!pEditor)
        return;

    CString strCaption;
    views::IconHolder hIcon;
    try {
        strCaption.LoadString(m_nResourceID);
        hIcon.reset(::LoadIcon(LOWORD(m_nResourceID)));
    } catch (CMemoryException& e) {
        e.ReportError(); // the pane comes without what is missing
    }
    pEditor->AddPane(m_nPaneKind, m_hWnd, strCaption, hIcon.get());
    m_bPaneShown = TRUE;
}

void CObjectsList::RemovePane()
{
    if (!m_bPaneShown)
        return;
    if (const auto pEditor = EditorToTell()) {
        pEditor->RemovePane(m_nPaneKind, m_hWnd);
        m_bPaneShown = FALSE;
    }
}

void CObjectsList::ClearContext()
{
    MoveLabelEdit(-1);
    UncacheAll();
    SetItemCount(0);
    m_pCache->RemoveAll();
    m_nCacheFrom = m_nCacheTo = 0;
    m_nOrdered = 0;
    m_doubted.clear();
    std::exchange(m_atoms, {}).clear(); // an atom's end may come back here: there are no rows any more
    m_pContainer.Release();
    OnClearContext();
}

void CObjectsList::OnClearContext() {}

void CObjectsList::GoToItem(UINT nItem)
{
    const HELDPAIR pair = HoldPair(static_cast<int>(nItem));
    if (!pair)
        return;
    if (const auto pEditor = EditorToTell())
        pEditor->NotifyHandlers(nullptr, &IAEStateHandler::OnAtomEntered, pair.pAtom.Get(), pair.pContainer.Get(), 0);
}

OBJPAIR* CObjectsList::PairAt(int nItem) const
{
    if (nItem < 0 || static_cast<std::size_t>(nItem) >= m_atoms.size())
        return nullptr;
    IAtom* const pAtom = m_atoms[static_cast<std::size_t>(nItem)].Get();
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
    if (!pPair)
        return {};
    return HELDPAIR::Share(pPair->pAtom, pPair->pContainer);
}

CStubRef<IAtomContainer> CObjectsList::ContainerInRow(int nItem) const
{
    return CStubRef<IAtomContainer>::From(HoldPair(nItem).pAtom.Get());
}
