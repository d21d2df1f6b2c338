// The editor's window: menus, path and tools at the top, tree and list side by side, the status at the bottom.
#pragma once

#include "Editor/commands/FrameCommands.h"
#include "Editor/commands/FrameKeys.h"
#include "Editor/commands/PlaceCommands.h"
#include "Editor/commands/ViewCommands.h"
#include "Editor/frame/Bars.h"
#include "Editor/frame/ChangeFollower.h"
#include "Editor/frame/Settings.h"
#include "Editor/frame/WorkView.h"
#include "Editor/model/Library.h"
#include "Editor/views/EditorTree.h"
#include "Editor/views/FolderDrop.h"
#include "HostKit/frame/Splitter.h"
#include "Views/host/StateHandler.h"

namespace editor
{

// The frame is a handler like the views: it hears from the editor what was entered, and shows a container's path or,
// for an atom that is none, the atom's picture in the list's place.
class CMainFrame : public CWnd, public CStateHandler, public hostkit::PaneFrame
{
public:
    struct Outside
    {
        PlaceCommands::Outside places;
        std::function<void(const CMainFrame& frame)> ending; // the window is still there, and goes
        std::function<void()> closed;                        // the user closed the window, which is gone; may be empty
    };
    CMainFrame(CAtomEditor& editor, PictureStore& pictures, Outside outside); // the first two are borrowed
    ~CMainFrame() override;

    // A top-level window with the views in it, not shown yet; its client area on the screen, in whose corner it is
    // nowhere in particular.
    BOOL Create(const CRect& place);
    void Follow(const Settings& settings); // before anything is shown
    void Remember(Settings& settings) const;
    // What was expanded and, if that is wanted, shown when this library was shown last; as far as it is still there.
    void ShowAsBefore(const Settings& settings, bool bShown); // what it is like now
    void ShowLibrary(CLibrary* pLibrary);                     // in place of the one before
    CEditorTree& GetTree() { return m_tree; }
    Bars& GetBars() { return m_bars; }
    ChangeFollower& GetFollower() { return m_follower; }
    hostkit::CSplitter& GetSplitter() { return m_splitter; }
    CEditorList& GetList() { return m_content.GetList(); } // the one that is shown, or will be
    CKeysSheet& GetKeysSheet() { return m_keysSheet; }
    CPropertiesPane& GetProperties() { return m_properties; }
    Status GetStatus() const; // what the status bar says

    Navigation& GetNavigation() { return m_navigation; }
    CMember* Shown() const { return m_navigation.Shown(); }
    CContainer* ShownContainer() const { return m_navigation.ShownContainer(); }
    CProgressStrip& GetProgress() { return m_workView.GetStrip(); }
    FrameCommands& GetCommands() { return m_commands; }
    Filter& GetFilter() { return m_filter; }
    Search& GetSearch() { return m_search; }
    ViewCommands& GetViews() { return m_views; }
    PlaceCommands& GetPlaces() { return m_places; }
    Content& GetContent() { return m_content; }

    void AddPane(DWORD kind, HWND hWnd, LPCSTR pszCaption, HICON hIcon) override;
    void RemovePane(DWORD kind, HWND hWnd) override;
    HWND GetMainWindow() const override { return m_hWnd; }
    CMenu* CreateContextMenu() override { return m_desk.MakeContextMenu().release(); }
    void OnMoving() override;
    void OnMoved(const std::string& reason) override;

    BOOL OnCreateAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnChangeAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnAtomSelected(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnAtomDeselected(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnAtomEntered(IAtom* pAtom, IAtomContainer* pContainer) override;

protected:
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg LRESULT OnActivated(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void OnPressed(); // a mouse button, on the views
    bool MayClose();  // asks what is to become of phases that are modified
    DropFailed ReportDrop();
    hostkit::CPane* PaneOfKind(DWORD kind); // NULL: none
    void Arrange();
    void MoveSplitter(int x);
    CEditorList::Events ListEvents();
    CPlayerView::Events PlayerEvents();
    void ShowMovement();
    void FollowFrame(IAtom* pAtom);
    void UpdateStatus();
    CPropertiesPane::Phases SelectedPhases() const;

    CAtomEditor& m_editor;
    PictureStore& m_pictures;
    const Outside m_outside;
    const std::shared_ptr<int> m_pAlive = std::make_shared<int>(); // goes with the frame
    DWORD m_dwHandlerCookie = 0;
    const std::function<void(std::string)> m_tell = [this](std::string line) { m_bars.SetNews(std::move(line)); };
    Navigation m_navigation;
    ModifiedPhases m_modified;
    FrameCommands::Position m_beforeMove; // while a drag's originals go
    Bars m_bars;
    hostkit::CPane m_treePane;
    hostkit::CSplitter m_splitter;
    int m_nTreeWidth = PaneLayout::kUsualTree; // what the user wants, if there is room
    Content m_content;
    FrameCommands m_commands;
    ChangeFollower m_follower;
    CEditorTree m_tree;
    CPropertiesPane m_properties;
    CKeysSheet m_keysSheet;
    Filter m_filter;
    Search m_search;
    PlaceCommands m_places;
    FolderDropTarget m_folderDrops;
    ViewCommands m_views;
    CommandDesk m_desk;
    FrameKeys m_keys;
    WorkView m_workView;
};

} // namespace editor
