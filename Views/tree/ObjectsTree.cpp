// The tree view's life, from Create to its window's end.
#include "Views/tree/ObjectsTree.h"

#include "Views/host/IAtomEditor.h"
#include "Views/host/Resources.h"
#include "Views/host/Services.h"
#include "Views/host/inside/EditorLink.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/tree/TreeDropTarget.h"
#include "Views/tree/inside/TreeIconSlots.h"
#include "Views/tree/inside/TreeRecords.h"

namespace
{

constexpr UINT kControlID = 0xE900;
constexpr DWORD kStyle = WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | TVS_HASBUTTONS | TVS_HASLINES |
                         TVS_LINESATROOT | TVS_EDITLABELS | TVS_SHOWSELALWAYS;
static_assert(kStyle == 0x4600002F);

constexpr UINT kPaneKind = 0;
constexpr LPCSTR kFallbackCaption = "Loaded Libraries";

constexpr int kImageWidth = 16;
constexpr int kImagesToGrow = 4;
constexpr COLORREF kTransparent = RGB(255, 0, 0);

} // namespace

BEGIN_MESSAGE_MAP(CObjectsTree, CTreeCtrl)
    ON_WM_CREATE()
    ON_NOTIFY_REFLECT(TVN_GETDISPINFO, OnObjectsGetDispInfo)
    ON_WM_DESTROY()
    ON_NOTIFY_REFLECT_EX(TVN_SELCHANGED, OnSelChanged)
    ON_WM_CONTEXTMENU()
    ON_WM_RBUTTONDOWN()
    ON_NOTIFY_REFLECT(TVN_SELCHANGING, OnSelChanging)
    ON_NOTIFY_REFLECT(TVN_BEGINLABELEDIT, OnBeginLabelEdit)
    ON_NOTIFY_REFLECT(TVN_ENDLABELEDIT, OnEndLabelEdit)
    ON_NOTIFY_REFLECT(TVN_BEGINDRAG, OnBeginDrag)
    ON_NOTIFY_REFLECT_EX(TVN_ITEMEXPANDED, OnItemExpanded)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDBLCLK()
END_MESSAGE_MAP()

CObjectsTree::CObjectsTree(int bPassive)
    : m_pRecords(std::make_unique<views::TreeRecords>()),
      m_pIconSlots(std::make_unique<views::TreeIconSlots>()),
      m_pEditor(std::make_unique<views::EditorLink>(*this, *this, bPassive)),
      m_pDropTarget(std::make_unique<CTreeDropTarget>())
{}

// A window that is still there goes now, while it can still take its handler from the editor.
CObjectsTree::~CObjectsTree()
{
    DestroyWindow();
}

BOOL CObjectsTree::Create(CWnd* pParentWnd)
{
    return CTreeCtrl::Create(0, CRect(), pParentWnd, kControlID);
}

BOOL CObjectsTree::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CTreeCtrl::PreCreateWindow(cs))
        return FALSE;
    cs.style = kStyle;
    cs.dwExStyle |= WS_EX_CLIENTEDGE;
    return TRUE;
}

// Without the bitmap the tree works, but shows no pictures.
int CObjectsTree::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CTreeCtrl::OnCreate(lpCreateStruct) == -1)
        return -1;

    m_bClosing = false;
    m_nOpenImage = m_nDefaultImage = -1;
    if (!JoinEditor(m_hWnd))
        return -1;
    m_pDropTarget->Register(this);
    m_pIconSlots->Clear();
    m_images.Create(views::IDB_TREE_ITEMS, kImageWidth, kImagesToGrow, kTransparent);
    m_nDefaultImage = 0;
    m_nOpenImage = 1;
    SetImageList(&m_images, TVSIL_NORMAL);
    return 0;
}

// False when the window went while the editor was told of it.
bool CObjectsTree::JoinEditor(HWND hWnd)
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (pEditor && !m_pEditor->IsPassive())
        m_pEditor->AddPane(pEditor.Get(), kPaneKind, views::IDS_TREE_PANE, views::IDR_TREE_PANE, kFallbackCaption);
    return ::IsWindow(hWnd) && m_pEditor->Join(pEditor.Get());
}

// An item that OnDeleteAtom refuses goes without it. One that an outer call is removing just now is passed by.
void CObjectsTree::OnDestroy()
{
    m_bClosing = true;
    m_pEditor->Leave();
    SelectItem(nullptr); // or it would move on with each item that goes

    HTREEITEM hPassed = nullptr;
    while (const HTREEITEM hItem = hPassed ? GetNextSiblingItem(hPassed) : GetRootItem()) {
        const HELDPAIR pair = HoldPair(hItem);
        OnDeleteAtom(pair.pAtom.Get(), pair.pContainer.Get());
        RemoveItem(hItem);
        if (RecordOf(hItem))
            hPassed = hItem;
    }
    CTreeCtrl::OnDestroy();
}

// Through the handler, as the editor would call it.
BOOL CObjectsTree::SetRootAtom(IAtom* pAtom)
{
    if (!pAtom)
        return FALSE;
    CStubRef<IAtomContainer> pContainer;
    pAtom->GetContainer(pContainer.Receive(), IID_IAtomContainer);
    return OnAtomEntered(pAtom, pContainer.Get());
}
