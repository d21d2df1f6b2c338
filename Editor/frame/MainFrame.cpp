#include "Editor/frame/MainFrame.h"

#include "Editor/frame/StatusText.h"
#include "Editor/model/ImageLink.h"
#include "Editor/model/Phase.h"
#include "Editor/resources/EditorResources.h"
#include "Editor/widgets/Look.h"
#include "Toolkit/menu/MessageBox.h"

#include <utility>

namespace editor
{
BEGIN_MESSAGE_MAP(CMainFrame, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_MESSAGE(WM_ACTIVATE, OnActivated)
END_MESSAGE_MAP()

CMainFrame::CMainFrame(CAtomEditor& editor, PictureStore& pictures, Outside outside)
    : m_editor(editor),
      m_pictures(pictures),
      m_outside(std::move(outside)),
      m_navigation(
          editor, [this] { GetList().FocusSelection(); }, m_tell),
      m_modified(editor),
      m_bars({m_navigation, m_places, m_views, m_desk, m_content, [this] { return GetStatus(); }}),
      m_treePane(kSpace / 2),
      m_splitter([this](int x) { MoveSplitter(x); }),
      m_content(pictures, ListEvents(), PlayerEvents(),
                [this] {
                    Arrange();
                    UpdateStatus();
                }),
      m_commands({editor, pictures, m_navigation, m_content, m_modified, [this] { UpdateStatus(); }}),
      m_follower({editor, pictures, m_navigation, m_content, m_modified, m_commands, m_tell}),
      m_tree(ReportDrop(), m_tell, [this] { OnPressed(); }),
      m_properties({[this] { return SelectedPhases(); },
                    [this](const auto&... entered) { m_modified.Enter(entered...); },
                    [this] { m_content.TakeFocus(); }}),
      m_keysSheet([this] { m_content.TakeFocus(); }),
      m_filter(m_content, [this] { UpdateStatus(); }),
      m_search({m_navigation, m_commands, m_content, m_tell}),
      m_places({editor, m_navigation, m_bars.GetPathBar(), m_outside.places, m_tell}),
      m_folderDrops(editor, kMenuBarHeight + kPathBarHeight,
                    [this, pAlive = std::weak_ptr<int>(m_pAlive)](const std::string& path) {
                        if (!pAlive.expired())
                            m_places.OpenLibrary(path);
                    }),
      m_views({*this, m_treePane, m_tree, m_content, m_properties, m_keysSheet, m_filter, m_search}),
      m_desk({m_commands, m_places, m_views}, m_tell),
      m_keys({*this, m_tree, m_splitter, m_content, m_navigation, m_filter, m_desk}),
      m_workView(editor.GetWork(), m_tell)
{}

CMainFrame::~CMainFrame()
{
    DestroyWindow();
}

BOOL CMainFrame::Create(const CRect& place)
{
    return CreateEx(0, "", "Views", WS_OVERLAPPED | WS_CLIPCHILDREN, place, nullptr, 0);
}

void CMainFrame::Follow(const Settings& settings)
{
    m_nTreeWidth = settings.treeWidth > 0 ? settings.treeWidth : PaneLayout::kUsualTree;
    Arrange();
    m_views.SetFoldersFirst(settings.foldersFirst);
    m_content.SetThumbnailExtent(settings.thumbnailExtent > 0 ? settings.thumbnailExtent : Content::kUsualThumbnail);
    m_content.ShowPixels(settings.pixels);
    m_content.ShowList(settings.thumbnails ? ListKind::Thumbnails : ListKind::Icons);
    m_content.ShowEmptyList();
}

void CMainFrame::Remember(Settings& settings) const
{
    GetWindowRect(&settings.window);
    settings.treeWidth = std::max(0, m_nTreeWidth);
    settings.foldersFirst = m_views.AreFoldersFirst();
    settings.thumbnailExtent = m_content.GetThumbnailExtent();
    settings.pixels = m_content.ArePixelsShown();
    settings.thumbnails = m_content.GetKind() == ListKind::Thumbnails;
    settings.shown = ShownContainer()->Path();
    settings.expanded = m_tree.ExpandedPaths(Settings::kMostExpanded);
}

void CMainFrame::ShowAsBefore(const Settings& settings, bool bShown)
{
    const LongWork::Command command(m_editor.GetWork(), "Reading", Progress::Unit::Found);
    for (const std::string& path : settings.expanded)
        m_tree.ExpandAtom(m_navigation.Library()->Find(path).Get());
    const CStubRef<CMember> pShown = bShown ? m_navigation.Library()->Find(settings.shown) : CStubRef<CMember>();
    if (pShown)
        m_navigation.GoTo(pShown.Get());
}

// The former library goes when nothing of it is selected any more.
void CMainFrame::ShowLibrary(CLibrary* pLibrary)
{
    const CStubRef<CLibrary> pFormer = m_navigation.SetLibrary(pLibrary);
    m_editor.AddTop(pLibrary);
    m_tree.ExpandAtom(pLibrary);
    m_navigation.GoToTop();
    if (pFormer)
        m_editor.RemoveTop(pFormer.Get());
}

BOOL CMainFrame::OnCreateAtom(IAtom* pAtom, IAtomContainer*)
{
    m_follower.Came(pAtom);
    ShowMovement();
    UpdateStatus();
    return TRUE;
}

BOOL CMainFrame::OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer)
{
    m_follower.Went(pAtom, pContainer);
    m_modified.Forget(pAtom);
    ShowMovement();
    UpdateStatus();
    return TRUE;
}

BOOL CMainFrame::OnChangeAtom(IAtom* pAtom, IAtomContainer*)
{
    if (pAtom && pAtom == m_content.GetPicture().GetAtom()) {
        m_content.GetPicture().OnPictureArrived();
        m_content.PlayPicture();
    }
    m_bars.GetStatusBar().Update();
    if (dynamic_cast<CPhase*>(CMember::Of(pAtom))) {
        m_content.UpdatePlayer(pAtom);
        m_properties.Update(); // looks through all that is selected: not for each picture that has been read
    }
    return TRUE;
}

// A player that stands still shows the frame that the user is at.
void CMainFrame::FollowFrame(IAtom* pAtom)
{
    const auto* const pLink = dynamic_cast<const CImageLink*>(CMember::Of(pAtom));
    if (pLink && pLink->Container() == Shown() && pLink->Position() >= 0)
        m_content.GetPlayer().Follow(pLink->Position());
}

BOOL CMainFrame::OnAtomSelected(IAtom* pAtom, IAtomContainer*)
{
    FollowFrame(pAtom);
    UpdateStatus();
    return TRUE;
}

// The one of several that is left is where the user is.
BOOL CMainFrame::OnAtomDeselected(IAtom*, IAtomContainer*)
{
    if (m_content.GetPlayer().HasFrames() && GetList().GetSelectedCount() == 1)
        FollowFrame(GetList().GetAtom(GetList().GetNextItem(-1, LVNI_SELECTED)).Get());
    UpdateStatus();
    return TRUE;
}

// The list, which hears of it next, shows a container's members and makes way for anything else.
BOOL CMainFrame::OnAtomEntered(IAtom* pAtom, IAtomContainer*)
{
    CMember* const pMember = CMember::Of(pAtom);
    if (!pMember)
        return TRUE;
    m_navigation.ReadAside(pMember);
    m_navigation.SetShown(pMember);
    m_filter.Forget();
    m_search.Forget();
    if (CStubRef<IAtomContainer>::From(pAtom))
        m_content.HidePicture();
    else // whoever walks through the tree stays in it
        m_content.ShowPicture(pMember, ::GetFocus() == m_tree.m_hWnd);
    ShowMovement();
    SetWindowText((pMember->ShownName() + " - Views").c_str());
    Arrange();
    m_bars.ShowPath();
    UpdateStatus();
    return TRUE;
}

// Of a phase that is shown.
void CMainFrame::ShowMovement()
{
    if (m_content.IsPictureShown())
        return;
    auto* const pPhase = dynamic_cast<CPhase*>(Shown());
    if (pPhase && pPhase->GetCount() > 0)
        m_content.ShowPhase(*pPhase);
    else
        m_content.HidePlayer();
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    // The frame hears of everything first; the lists, registered before the tree, show what was entered by the time
    // that the tree selects it.
    m_editor.SetFrame(this);
    m_editor.GetHistory().SetNews([this](const std::string& line) {
        m_bars.SetNews(m_editor.GetWork().WasCancelled() ? "Cancelled. " + line : line);
    });
    m_editor.GetHistory().SetLastPart([this] { return m_follower.FollowPhases(); });
    m_content.ActivateFirst();
    m_dwHandlerCookie = m_editor.RegisterHandler(m_hWnd, this);
    const bool bMade = m_bars.Create(this) && m_treePane.Create(this) && m_splitter.Create(this) &&
                       m_content.Create(this) && m_workView.Create(&m_bars.GetStatusBar()) &&
                       m_tree.Create(&m_treePane) && m_properties.Create(this) && m_keysSheet.Create(this) &&
                       m_filter.Create() && m_search.Create(this) && m_folderDrops.Register(this);
    return bMade ? 0 : -1;
}

void CMainFrame::OnDestroy()
{
    if (m_outside.ending)
        m_outside.ending(*this);
    m_editor.UnregisterHandler(m_dwHandlerCookie);
    m_editor.SetFrame(nullptr);
    m_editor.GetHistory().SetNews({});
    m_editor.GetHistory().SetLastPart({});
    CWnd::OnDestroy();
}

void CMainFrame::OnClose()
{
    if (!MayClose())
        return;
    const std::function<void()> closed = m_outside.closed; // the frame may go with it
    DestroyWindow();
    if (closed)
        closed();
}

void CMainFrame::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    Arrange();
}

// The focus is the views' own; the frame passes on what falls to it when one is hidden.
void CMainFrame::OnSetFocus(CWnd* pOldWnd)
{
    CWnd::OnSetFocus(pOldWnd);
    m_content.TakeFocus();
}

void CMainFrame::UpdateStatus()
{
    m_bars.Update();
    m_properties.Update();
}

Status CMainFrame::GetStatus() const
{
    const int nRows = m_content.GetList().GetItemCount();
    const int nHidden = m_filter.Hides() ? static_cast<int>(ShownContainer()->GetCount()) - nRows : 0;
    Status status = m_content.IsPictureShown() ? DescribePicture(*Shown(), m_pictures, m_content.GetZoom())
                                               : DescribeList(m_content.GetList(), nHidden, Shown(), m_pictures);
    status.news = m_bars.GetStatusBar().GetNews();
    return status;
}

// Without a selection, the phase that is shown.
CPropertiesPane::Phases CMainFrame::SelectedPhases() const
{
    CPropertiesPane::Phases phases;
    const ActiveMembers members = GetActiveMembers(m_editor);
    for (CPhase* const pPhase : OwnOf<CPhase>(members))
        phases.push_back(CStubRef<CPhase>::Share(pPhase));
    auto* const pShown = dynamic_cast<CPhase*>(Shown());
    if (phases.empty() && pShown)
        phases.push_back(CStubRef<CPhase>::Share(pShown));
    return phases;
}

bool CMainFrame::MayClose()
{
    m_views.LeaveFields();
    const std::string question = m_modified.SaveQuestion();
    if (question.empty())
        return true;
    const int nAnswer = AfxMessageBox(question.c_str(), MB_YESNOCANCEL | MB_ICONQUESTION);
    return nAnswer == IDYES ? m_commands.SaveOrTell() : nAnswer == IDNO;
}

// The frame may be gone by the time that a drop's failure is told.
DropFailed CMainFrame::ReportDrop()
{
    return [this, pAlive = std::weak_ptr<int>(m_pAlive)](std::string reason) {
        if (!pAlive.expired())
            m_commands.ShowFailure(IDS_DROP_FAILED, std::move(reason));
    };
}

// What a drop has pasted into the list is selected by then, and stays so.
void CMainFrame::OnMoving()
{
    m_beforeMove = m_commands.RememberPosition();
}

void CMainFrame::OnMoved(const std::string& reason)
{
    m_commands.GoOnAt(std::exchange(m_beforeMove, {}));
    m_commands.ShowFailure(IDS_MOVE_FAILED, reason);
}

LRESULT CMainFrame::OnActivated(WPARAM wParam, LPARAM)
{
    // Nobody looks at what is being made; it is told of when it is done.
    if (wParam == WA_ACTIVE && !m_editor.GetWork().IsUnderWay())
        m_follower.LookAround();
    return 0;
}

BOOL CMainFrame::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (lParam == 0 && m_desk.Run(LOWORD(wParam)))
        return TRUE;
    return CWnd::OnCommand(wParam, lParam);
}

BOOL CMainFrame::PreTranslateMessage(MSG* pMsg)
{
    const bool bAlt = pMsg->message == WM_SYSKEYDOWN;
    const bool bModifier = pMsg->wParam == VK_CONTROL || pMsg->wParam == VK_SHIFT; // the news tell of keys
    if (pMsg->message == WM_KEYDOWN && !bModifier)
        m_bars.SetNews({});
    if (m_bars.GetMenuBar().HandleKey(*pMsg))
        return TRUE;
    if ((bAlt || pMsg->message == WM_KEYDOWN) && m_keys.Handle(pMsg->hwnd, static_cast<UINT>(pMsg->wParam), bAlt))
        return TRUE;
    return CWnd::PreTranslateMessage(pMsg);
}

void CMainFrame::OnPressed()
{
    m_bars.GetMenuBar().Leave();
    m_bars.SetNews({});
}

} // namespace editor
