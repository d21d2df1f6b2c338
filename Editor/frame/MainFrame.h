// The editor's window: the path at the top, tree and list side by side, the status at the bottom.
#pragma once

#include "Editor/frame/DraggedOut.h"
#include "Editor/frame/EditorList.h"
#include "Editor/frame/EditorTree.h"
#include "Editor/frame/Pane.h"
#include "Editor/frame/PaneLayout.h"
#include "Editor/frame/PathBar.h"
#include "Editor/frame/PictureView.h"
#include "Editor/frame/PropertiesPane.h"
#include "Editor/frame/Splitter.h"
#include "Editor/frame/StatusBar.h"
#include "Editor/model/Library.h"
#include "Editor/services/Commands.h"
#include "Views/host/StateHandler.h"

namespace editor
{

// The frame is a handler like the views: it hears from the editor what was entered, and shows a container's path or,
// for an atom that is none, the atom's picture in the list's place. Where the user wants to go it tells the
// editor, and all views follow.
class CMainFrame : public CWnd, public CStateHandler, public PaneFrame
{
public:
    // Both borrowed. `closed` is called when the window is gone; it may be empty.
    CMainFrame(CAtomEditor& editor, PictureStore& pictures, std::function<void()> closed);
    ~CMainFrame() override;

    BOOL Create(CSize client);            // a top-level window with the views in it, not shown yet
    void ShowLibrary(CLibrary* pLibrary); // in place of the one before
    CEditorTree& GetTree() { return m_tree; }
    CSplitter& GetSplitter() { return m_splitter; }
    CEditorList& GetList() { return *m_pList; } // the one that is shown, or will be
    CPathBar& GetPathBar() { return m_pathBar; }
    CPictureView& GetPictureView() { return m_picture; }
    CPropertiesPane& GetProperties() { return m_properties; }
    Status GetStatus() const; // what the status bar says

    void GoUp(); // nothing at the top
    void GoToTop();
    void OpenFocused(); // the list's focused row
    void Refresh();     // reads what is shown anew
    void FocusNextPane();
    enum class ListKind
    {
        Icons,
        Thumbnails
    };
    void ShowList(ListKind kind);                     // with the selection of the one before
    void GoTo(CMember* pMember);                      // opens it, whatever it is
    CMember* Shown() const { return m_pShown.Get(); } // the container, or the picture shown in its place; or NULL
    CContainer* ShownContainer() const;               // that, or the one that holds the picture; NULL without either
    Commands& GetCommands() { return m_commands; }

    // The commands that change what is shown; nothing is asked, and the answer is the reason for what was not done.
    std::string Cut();
    std::string Remove();
    std::string Paste(bool* pAny = nullptr); // into the container that is shown; did any object come?
    // These members of the container that is shown and no others. The views hear of the last alone, however many.
    void SelectJust(const std::vector<CStubRef<IAtom>>& atoms);

    std::string Save(); // all phases that are modified; the reason for the first that was not saved

    // The same by their keys: nothing when nothing is selected. A message box tells what was not done.
    void CopySelection();
    void CutSelection();
    void RemoveSelection(); // asks first
    void PasteHere();
    void SaveByKey();
    // What the menu does besides.
    void OpenSelected(); // the one that is
    void RenameSelected();
    void SelectAll(); // in the list

    void AddPane(DWORD kind, HWND hWnd, LPCSTR pszCaption, HICON hIcon) override;
    void RemovePane(DWORD kind, HWND hWnd) override;
    HWND GetMainWindow() const override { return m_hWnd; }
    CMenu* CreateContextMenu() override;
    void OnMoving() override;
    void OnMoved(const std::string& reason) override;
    void OnCopied(const ActiveMembers& members) override;

    BOOL OnCreateAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnChangeAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnAtomSelected(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnAtomDeselected(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnAtomEntered(IAtom* pAtom, IAtomContainer* pContainer) override;

protected:
    BOOL PreTranslateMessage(MSG* pMsg) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg LRESULT OnSelectRenamed(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    bool IsPictureShown() const { return m_picture.GetAtom() != nullptr; }
    void GoBackTo(CContainer* pContainer);
    void GoToPart(int nPart);                        // of the path
    bool HandleKey(HWND hWnd, UINT vkey, bool bAlt); // the window has the focus; false: the key means nothing here
    bool HandleFrameKey(UINT vkey);                  // in any pane
    bool HandleContentKey(UINT vkey);
    bool HandleTreeKey(UINT vkey);
    bool HandleCommandKey(UINT vkey);
    bool HandleControlKey(UINT vkey);
    struct Position // where the user is
    {
        CStubRef<CMember> pShown;
        CEditorList::State list;
    };
    Position RememberPosition();
    void GoOnAt(const Position& position); // as far as it is still there
    template <class Carry>
    std::string CarryAsAgreed(Carry carry);
    template <class Change>
    std::string ChangeSelection(Change change);
    void LeaveWhatIsGone();
    void AwaitNextLook();
    void ReadAgain(CContainer& container); // the list keeps its selection
    void FollowRenamed(IAtom* pFormer, CMember* pRenamed);
    DropFailed ReportDrop();
    void ShowFailure(UINT nCaptionID, std::string reason);
    CPane* PaneOfKind(DWORD kind); // NULL: none
    void Arrange();
    void MoveSplitter(int x);
    CEditorList::Events ListEvents();
    void OfferLists();
    void ForgetUnseenPictures();
    void FocusContent(); // the pane at the right
    void ShowPicture(CMember* pMember);
    void HidePicture();
    void UpdatePath();
    Status DescribePicture() const;
    Status DescribeList() const;
    std::string DescribeEmptyList() const;
    void UpdateStatus();
    CPropertiesPane::Phases SelectedPhases() const;
    void NoteModified(const CPropertiesPane::Phases& phases);
    void ForgetModified(IAtom* pGone, CMember* pRenamed); // its numbers go to what it has become, if anything
    bool MayClose();                                      // asks what is to become of phases that are modified

    CAtomEditor& m_editor;
    Commands m_commands;
    PictureStore& m_pictures;
    const std::function<void()> m_closed;
    const std::shared_ptr<int> m_pAlive = std::make_shared<int>(); // goes with the frame
    DWORD m_dwHandlerCookie = 0;
    CStubRef<CLibrary> m_pLibrary;
    CStubRef<CMember> m_pShown;
    CStubRef<CMember> m_pCreated; // what came last, until the next news
    Position m_beforeMove;        // while a drag's originals go
    DraggedOut m_draggedOut;
    CStubRef<CMember> m_pRenamed; // is to be selected once everyone has heard of it
    CPathBar m_pathBar;
    CPane m_treePane, m_listPane, m_picturePane;
    CSplitter m_splitter;
    int m_nTreeWidth = PaneLayout::kUsualTree; // what the user wants, if there is room
    CEditorIcons m_icons;
    CEditorThumbnails m_thumbnails;
    CEditorList* m_pList = &m_icons; // the active one
    CEditorTree m_tree;
    CPictureView m_picture;
    CPropertiesPane m_properties;
    CPropertiesPane::Phases m_modified; // and those that were, since all were saved last
    CStatusBar m_statusBar;
};

} // namespace editor
