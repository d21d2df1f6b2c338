// The frame's panes: which are shown, and where.
#include "Editor/frame/MainFrame.h"
#include "Editor/frame/StatusText.h"
#include "Editor/model/PlainFile.h"

namespace editor
{
namespace
{

constexpr DWORD kTreePane = 0;
constexpr DWORD kListPane = 1;

} // namespace

hostkit::CPane* CMainFrame::PaneOfKind(DWORD kind)
{
    return kind == kTreePane ? &m_treePane : kind == kListPane ? &m_content.GetListPane() : nullptr;
}

void CMainFrame::AddPane(DWORD kind, HWND hWnd, LPCSTR pszCaption, HICON hIcon)
{
    hostkit::CPane* const pPane = PaneOfKind(kind);
    if (!pPane)
        return;
    const toolkit::Surface* const pIcon = toolkit::IconSurface(hIcon);
    pPane->ShowView(hWnd, pszCaption ? pszCaption : "", pIcon ? *pIcon : toolkit::Surface());
    if (kind == kListPane && (::GetFocus() == nullptr || ::GetFocus() == m_hWnd))
        ::SetFocus(hWnd);
}

void CMainFrame::RemovePane(DWORD kind, HWND hWnd)
{
    hostkit::CPane* const pPane = PaneOfKind(kind);
    if (pPane && hWnd == pPane->GetView())
        pPane->HideView();
}

void CMainFrame::Arrange()
{
    CRect client;
    GetClientRect(&client);
    const PaneLayout layout(client.Size(), m_bars.GetWanted(m_nTreeWidth));
    m_bars.MoveTo(layout);
    m_keysSheet.MoveWindow({0, layout.path.bottom, client.right, layout.status.top});
    m_treePane.MoveWindow(layout.tree);
    m_splitter.MoveWindow(layout.splitter);
    m_content.MoveTo(layout.content);
    m_search.GetSheet().MoveWindow({layout.content.left, layout.content.top, client.right, layout.status.top});
    m_properties.MoveWindow(layout.properties);
    if (layout.tree.IsRectEmpty() && ::GetFocus() == m_tree.m_hWnd)
        m_content.TakeFocus();
}

void CMainFrame::MoveSplitter(int x)
{
    m_nTreeWidth = x == hostkit::CSplitter::kUsual ? PaneLayout::kUsualTree : x;
    Arrange();
}

CEditorList::Events CMainFrame::ListEvents()
{
    return {[this] {
                return m_filter.Hides() ? "No name holds \"" + m_filter.GetText() + "\"." : DescribeEmptyList(Shown());
            },
            {},
            [this] { return static_cast<IAtomContainer*>(ShownContainer()); },
            ReportDrop(),
            m_tell,
            [this] { OnPressed(); },
            [this](int nNotches) { m_views.Step(nNotches); },
            [this](IAtom* pAtom) {
                auto* const pFile = dynamic_cast<CPlainFile*>(CMember::Of(pAtom));
                if (pFile)
                    m_navigation.Open(pFile);
                return pFile != nullptr;
            }};
}

CPlayerView::Events CMainFrame::PlayerEvents()
{
    return {[this] { return m_desk.Tools(CommandDesk::Row::Player); }, [this](UINT nID) { m_desk.Run(nID); }};
}

} // namespace editor
