#include "Editor/frame/MainFrame.h"

#include "Editor/disk/FileText.h"
#include "Editor/frame/StatusText.h"
#include "Editor/model/ImageLink.h"
#include "Editor/model/Phase.h"
#include "Editor/resources/EditorResources.h"
#include "Editor/widgets/Look.h"
#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/message/TaskInbox.h"

#include <utility>

namespace editor
{
namespace
{

constexpr UINT kSelectRenamed = WM_USER;

// Is it all that was selected?
bool IsOneThatIsGone(const CEditorList::State& list)
{
    CMember* const pOne = list.selected.size() == 1 ? CMember::Of(list.selected.front().Get()) : nullptr;
    return pOne && WhatIsLeftOf(pOne) != pOne;
}

} // namespace

BEGIN_MESSAGE_MAP(CMainFrame, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_MESSAGE(WM_ACTIVATE, OnActivated)
    ON_MESSAGE(kSelectRenamed, OnSelectRenamed)
END_MESSAGE_MAP()

CMainFrame::CMainFrame(CAtomEditor& editor, PictureStore& pictures, Outside outside)
    : m_editor(editor),
      m_pictures(pictures),
      m_outside(std::move(outside)),
      m_navigation(
          editor, [this] { GetList().FocusSelection(); },
          [this](std::string line) { m_statusBar.SetNews(std::move(line)); }),
      m_modified(editor),
      m_follower(editor, pictures, m_navigation),
      m_menuBar(CommandDesk::MenuTitles(),
                {[this](int nMenu) { return m_desk.MakeMenu(nMenu); }, [this](UINT nID) { m_desk.Run(nID); }}),
      m_ways([this] { return m_desk.WayTools(); }, [this](UINT nID) { m_desk.Run(nID); }),
      m_tools([this] { return m_desk.ObjectTools(); }, [this](UINT nID) { m_desk.Run(nID); }),
      m_pathBar({[this](int nPart) { m_navigation.GoToPart(nPart); }, [this] { m_places.TypePath(); },
                 [this](const std::string& path) { return m_places.ShowTyped(path); },
                 [this] { m_content.TakeFocus(); }}),
      m_treePane(kSpace / 2),
      m_splitter([this](int x) { MoveSplitter(x); }),
      m_content(pictures, ListEvents(), PlayerEvents(),
                [this] {
                    Arrange();
                    UpdateStatus();
                }),
      m_commands({editor, pictures, m_navigation, m_content, m_modified, [this] { UpdateStatus(); }}),
      m_tree(
          ReportDrop(), [this](const std::string& line) { m_statusBar.SetNews(line); }, [this] { OnPressed(); }),
      m_properties({[this] { return SelectedPhases(); },
                    [this](const auto&... entered) { m_modified.Enter(entered...); },
                    [this] { m_content.TakeFocus(); }}),
      m_keysSheet([this] { m_content.TakeFocus(); }),
      m_filter(m_content, [this] { UpdateStatus(); }),
      m_search(
          {m_navigation, m_commands, m_content, [this](std::string line) { m_statusBar.SetNews(std::move(line)); }}),
      m_places({editor, m_navigation, m_pathBar, m_outside.places,
                [this](std::string line) { m_statusBar.SetNews(std::move(line)); }}),
      m_views({*this, m_treePane, m_tree, m_content, m_properties, m_keysSheet, m_filter, m_search}),
      m_desk({m_commands, m_places, m_views}, [this](std::string line) { m_statusBar.SetNews(std::move(line)); }),
      m_keys({*this, m_tree, m_splitter, m_content, m_navigation, m_filter, m_desk}),
      m_statusBar([this] { return GetStatus(); }),
      m_sizeSlider(Content::kLeastThumbnail, Content::kMostThumbnail,
                   {[this] { return m_content.GetThumbnailExtent(); },
                    [this](int nExtent) { m_content.SetThumbnailExtent(nExtent); },
                    [this](int nSteps) { m_views.Step(nSteps); }}),
      m_workView(editor.GetWork(), [this](const std::string& line) { m_statusBar.SetNews(line); })
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
    ShowList(settings.thumbnails ? ListKind::Thumbnails : ListKind::Icons);
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
    const LongWork::Command command(&m_editor.GetWork(), "Reading", Progress::Unit::Found);
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
    m_pCreated = CStubRef<CMember>::Share(CMember::Of(pAtom));
    ShowMovement();
    UpdateStatus();
    return TRUE;
}

// A member that goes when another has just come to its container was renamed.
BOOL CMainFrame::OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer)
{
    const CStubRef<CMember> pCreated = std::move(m_pCreated);
    const bool bRenamed = pAtom && pCreated && pCreated->Container() && pContainer == pCreated->Container();
    if (bRenamed)
        FollowRenamed(pAtom, pCreated.Get());
    m_modified.Forget(pAtom);
    ShowMovement();
    UpdateStatus();
    return TRUE;
}

BOOL CMainFrame::OnChangeAtom(IAtom* pAtom, IAtomContainer*)
{
    if (pAtom && pAtom == GetPictureView().GetAtom())
        GetPictureView().OnPictureArrived(), m_content.PlayPicture();
    m_statusBar.Invalidate();
    if (dynamic_cast<CPhase*>(CMember::Of(pAtom))) {
        m_content.UpdatePlayer(pAtom);
        m_properties.Update(); // looks through all that is selected: not for each picture that has been read
    }
    return TRUE;
}

// A player that stands still shows the frame that the user is at.
BOOL CMainFrame::OnAtomSelected(IAtom* pAtom, IAtomContainer*)
{
    const auto* const pLink = dynamic_cast<const CImageLink*>(CMember::Of(pAtom));
    if (pLink && pLink->Container() == Shown() && pLink->Position() >= 0)
        m_content.GetPlayer().Follow(pLink->Position());
    UpdateStatus();
    return TRUE;
}

BOOL CMainFrame::OnAtomDeselected(IAtom*, IAtomContainer*)
{
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
    UpdatePath();
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

// The views show the object under its new name last, and take the next one's selection for the one that went. They are
// put right when they have heard of both; where what is shown was renamed, before they turn to something else.
void CMainFrame::FollowRenamed(IAtom* pFormer, CMember* pRenamed)
{
    for (CMember* pMember = Shown(); pMember; pMember = pMember->Container()) {
        if (static_cast<IAtom*>(pMember) != pFormer)
            continue;
        m_navigation.GoTo(pRenamed);
        break;
    }
    m_modified.Follow(CMember::Of(pFormer)->Path(), pRenamed->Path(), *m_navigation.Library());
    m_pRenamed = CStubRef<CMember>::Share(pRenamed);
    PostMessage(kSelectRenamed);
}

LRESULT CMainFrame::OnSelectRenamed(WPARAM, LPARAM)
{
    const CStubRef<CMember> pRenamed = std::move(m_pRenamed);
    if (!pRenamed || Shown() != pRenamed->Container())
        return 0;
    std::vector<CStubRef<IAtom>> atoms;
    atoms.push_back(CStubRef<IAtom>::Share(pRenamed.Get()));
    m_commands.GetPlain().Select(atoms, pRenamed->Container());
    GetList().FocusSelection();
    return 0;
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    // The frame hears of everything first; the lists, registered before the tree, show what was entered by the time
    // that the tree selects it.
    m_editor.SetFrame(this);
    m_editor.GetHistory().SetNews([this](const std::string& line) {
        m_statusBar.SetNews(m_editor.GetWork().WasCancelled() ? "Cancelled. " + line : line);
    });
    m_editor.GetHistory().SetLastPart([this] { return FollowPhases(); });
    m_content.ActivateFirst();
    m_dwHandlerCookie = m_editor.RegisterHandler(m_hWnd, this);
    const bool bMade = MakeBars() && m_treePane.Create(this) && m_splitter.Create(this) && m_content.Create(this) &&
                       m_workView.Create(&m_statusBar) && m_tree.Create(&m_treePane) && m_properties.Create(this) &&
                       m_keysSheet.Create(this) && m_filter.Create() && m_search.Create(this);
    return bMade ? 0 : -1;
}

bool CMainFrame::MakeBars()
{
    return m_menuBar.Create(this) && m_ways.Create(this) && m_tools.Create(this) && m_pathBar.Create(this) &&
           m_statusBar.Create(this) && m_sizeSlider.Create(this);
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

void CMainFrame::UpdatePath()
{
    std::vector<std::string> parts;
    for (const CMember* const pMember : m_navigation.Path())
        parts.push_back(pMember->ShownName());
    m_pathBar.SetPath(std::move(parts));
}

void CMainFrame::UpdateStatus()
{
    m_statusBar.Invalidate();
    m_sizeSlider.Invalidate();
    m_ways.Invalidate();
    m_tools.Invalidate();
    m_properties.Update();
}

Status CMainFrame::GetStatus() const
{
    const int nRows = m_content.GetList().GetItemCount();
    const int nHidden = m_filter.Hides() ? static_cast<int>(ShownContainer()->GetCount()) - nRows : 0;
    Status status = m_content.IsPictureShown() ? DescribePicture(*Shown(), m_pictures, m_content.GetPicture().GetZoom())
                                               : DescribeList(m_content.GetList(), nHidden, Shown(), m_pictures);
    status.news = m_statusBar.GetNews();
    return status;
}

// Without a selection, the phase that is shown.
CPropertiesPane::Phases CMainFrame::SelectedPhases() const
{
    CPropertiesPane::Phases phases;
    const auto add = [](IAtom* pAtom, IAtomContainer*, void* context) -> BOOL {
        if (auto* const pPhase = dynamic_cast<CPhase*>(CMember::Of(pAtom)))
            static_cast<CPropertiesPane::Phases*>(context)->push_back(CStubRef<CPhase>::Share(pPhase));
        return TRUE;
    };
    m_editor.EnumActivePairs(add, &phases);
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
    if (m_editor.GetWork().IsUnderWay()) // nobody looks at what is being made; it is told of when it is done
        return 0;
    if (const auto unknown = m_follower.Unfollowed(); wParam == WA_ACTIVE && !unknown.empty())
        OnDiskNews(unknown);
    return 0;
}

void CMainFrame::OnDiskNews(const std::vector<FolderNews>& news)
{
    const DiskFollower::Found found = m_follower.Look(news);
    if (!DiskFollower::MovesRows(found)) { // as after all that the program has done itself: no row is looked at
        m_follower.Tell(found);
        return;
    }
    const FrameCommands::Position position = m_commands.RememberPosition();
    if (std::string line = m_follower.Tell(found); !line.empty())
        m_statusBar.SetNews(std::move(line));
    m_pCreated.Release();
    if (m_pRenamed && !IsOneThatIsGone(position.list)) {
        m_pRenamed.Release(); // the user works on something else
        if (Shown() == position.pShown.Get())
            GetList().SetItemState(-1, 0, LVIS_SELECTED);
    }
    m_commands.GoOnAt(position);
}

// Who has just renamed a picture tells of that first.
std::string CMainFrame::FollowPhases()
{
    PhaseFollower::Followed followed =
        m_navigation.Library()->Follower()->Follow(m_editor.GetHistory(), &m_editor.GetWork());
    m_unfollowed = std::move(followed.trouble);
    if (followed.phases.empty() && m_unfollowed.empty())
        return {};
    toolkit::PostTask([this, phases = followed.phases, pAlive = std::weak_ptr<int>(m_pAlive)] {
        if (!pAlive.expired())
            ShowFollowed(phases);
    });
    const std::size_t n = followed.phases.size();
    return n == 0 ? std::string() : ", followed by " + std::to_string(n) + (n == 1 ? " phase" : " phases");
}

void CMainFrame::ShowFollowed(const std::vector<std::string>& phases)
{
    OnSelectRenamed(0, 0); // the views have heard of both by now
    std::vector<FolderNews> news;
    news.reserve(phases.size());
    for (const std::string& path : phases)
        news.push_back({FolderOf(path), {std::string(BaseName(path))}, {}, false});
    OnDiskNews(news);
    m_commands.ShowFailure(IDS_FOLLOW_FAILED, TakeUnfollowed());
}

CMenu* CMainFrame::CreateContextMenu()
{
    return m_desk.MakeContextMenu().release();
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
        m_statusBar.SetNews({});
    if (m_menuBar.HandleKey(*pMsg))
        return TRUE;
    if ((bAlt || pMsg->message == WM_KEYDOWN) && m_keys.Handle(pMsg->hwnd, static_cast<UINT>(pMsg->wParam), bAlt))
        return TRUE;
    return CWnd::PreTranslateMessage(pMsg);
}

void CMainFrame::OnPressed()
{
    m_menuBar.Leave();
    m_statusBar.SetNews({});
}

} // namespace editor
