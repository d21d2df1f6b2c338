// The frame's panes: which are shown, and where.
#include "Editor/frame/Look.h"
#include "Editor/frame/MainFrame.h"
#include "Editor/frame/PaneLayout.h"
#include "Editor/resources/EditorResources.h"
#include "Editor/resources/Pictograms.h"

namespace editor
{
namespace
{

constexpr DWORD kTreePane = 0;
constexpr DWORD kListPane = 1;

} // namespace

CPane* CMainFrame::PaneOfKind(DWORD kind)
{
    return kind == kTreePane ? &m_treePane : kind == kListPane ? &m_listPane : nullptr;
}

void CMainFrame::AddPane(DWORD kind, HWND hWnd, LPCSTR pszCaption, HICON hIcon)
{
    CPane* const pPane = PaneOfKind(kind);
    if (!pPane)
        return;
    const toolkit::Surface* const pIcon = toolkit::IconSurface(hIcon);
    pPane->ShowView(hWnd, pszCaption ? pszCaption : "", pIcon ? *pIcon : toolkit::Surface());
    if (kind == kListPane && (::GetFocus() == nullptr || ::GetFocus() == m_hWnd))
        ::SetFocus(hWnd);
}

void CMainFrame::RemovePane(DWORD kind, HWND hWnd)
{
    CPane* const pPane = PaneOfKind(kind);
    if (pPane && hWnd == pPane->GetView())
        pPane->HideView();
}

void CMainFrame::Arrange()
{
    CRect client;
    GetClientRect(&client);
    const PaneLayout layout(client.Size(), m_nTreeWidth);
    m_pathBar.MoveWindow(layout.path);
    m_treePane.MoveWindow(layout.tree);
    m_splitter.MoveWindow(layout.splitter);
    m_listPane.MoveWindow(layout.content);
    m_picturePane.MoveWindow(layout.content);
    m_properties.MoveWindow(layout.properties);
    m_statusBar.MoveWindow(layout.status);
    if (layout.tree.IsRectEmpty() && ::GetFocus() == m_tree.m_hWnd)
        FocusContent();
}

void CMainFrame::MoveSplitter(int x)
{
    m_nTreeWidth = x == CSplitter::kUsual ? PaneLayout::kUsualTree : x;
    Arrange();
}

// The picture takes the list's place, and the focus that was there; whoever walks through the tree stays in it.
void CMainFrame::ShowPicture(CMember* pMember)
{
    m_picture.SetAtom(pMember);
    m_picturePane.ShowView(m_picture.GetSafeHwnd(), pMember->ShownName(),
                           GetPictogram(Pictogram::ThumbnailPane, kPaneIconExtent));
    if (::GetFocus() != m_tree.m_hWnd)
        m_picture.SetFocus();
}

void CMainFrame::HidePicture()
{
    if (!IsPictureShown())
        return;
    m_picture.SetAtom(nullptr);
    m_picturePane.HideView();
}

CEditorList::Events CMainFrame::ListEvents()
{
    return {[this] { return DescribeEmptyList(); }, [this] { ForgetUnseenPictures(); },
            [this] { return static_cast<IAtomContainer*>(ShownContainer()); }, ReportDrop()};
}

void CMainFrame::OfferLists()
{
    m_listPane.SetChoices(
        {GetPictogram(Pictogram::IconPane, kPaneIconExtent), GetPictogram(Pictogram::ThumbnailPane, kPaneIconExtent)},
        [this](int nChoice) { ShowList(static_cast<ListKind>(nChoice)); });
}

void CMainFrame::ShowList(ListKind kind)
{
    CEditorList& next = kind == ListKind::Icons ? static_cast<CEditorList&>(m_icons) : m_thumbnails;
    CEditorList& former = *m_pList;
    if (&next == &former)
        return;
    const CEditorList::State state = former.Remember();
    const bool bFocused = ::GetFocus() == former.GetSafeHwnd();
    m_pList = &next;
    m_listPane.SetChosen(static_cast<int>(kind));
    former.Deactivate();
    next.Activate(IsPictureShown() ? nullptr : Shown());
    next.RestoreRows(state);
    if (bFocused)
        next.SetFocus();
    m_pictures.SendAwayUnseen(former.PictureSize(), [](IAtom*) { return false; });
    UpdateStatus();
}

// What was scrolled past is not worth reading. The tree's pictures are few, and small: it wishes for them again.
void CMainFrame::ForgetUnseenPictures()
{
    if (m_pictures.IsIdle())
        return;
    const std::vector<CStubRef<IAtom>> seen = m_pList->AtomsInSight();
    m_pictures.SendAwayUnseen(m_pList->PictureSize(), [&](IAtom* pAtom) { return IsAmong(seen, pAtom); });
}

void CMainFrame::FocusContent()
{
    if (IsPictureShown())
        m_picture.SetFocus();
    else if (m_pList->IsWindowVisible())
        m_pList->SetFocus();
}

void CMainFrame::FocusNextPane()
{
    CRect tree;
    m_treePane.GetClientRect(&tree);
    if (::GetFocus() == m_tree.m_hWnd || tree.IsRectEmpty())
        FocusContent();
    else
        m_tree.SetFocus();
}

} // namespace editor
