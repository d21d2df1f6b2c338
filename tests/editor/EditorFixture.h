// The whole editor on a library in a temporary folder, driven by mouse and keys.
#pragma once

#include "Editor/EditorApp.h"
#include "Editor/frame/MainFrame.h"
#include "tests/editor/BmpReader.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/TempFolder.h"

// At its end the editor is closed, and none of its objects may be alive.
class EditorTest : public DesktopTest
{
protected:
    explicit EditorTest(bool isFollowing = false); // what other programs do to the files
    ~EditorTest() override;

    std::string Open() { return Open(folder.Path()); }
    std::string Open(const std::string& path); // and waits until all is drawn; the error's line
    void Settle() { m_pApp->WaitUntilSettled(); }
    void ReadAll(); // that has been held back
    void ResizeWindow(CSize size);
    void CloseWindow(); // by the user
    void CloseApp() { m_pApp.reset(); }
    void StartAnew(); // the editor, with the present options
    editor::EditorApp& App() { return *m_pApp; }
    editor::CMainFrame& Frame();
    HWND List() { return Frame().GetList().GetSafeHwnd(); }
    HWND Picture() { return Frame().GetContent().GetPicture().GetSafeHwnd(); }
    editor::CEditorTree& Tree() { return Frame().GetTree(); }
    editor::History& History() { return Frame().GetCommands().GetHistory(); }
    std::string NextUndo() { return History().NameToUndo(); }
    std::string News() { return Frame().GetStatus().news; }
    HTREEITEM FindItem(const std::string& label);

    // The path below the library, what is shown, and the status: "/Ada | [a (*b)] | 2 objects, 1 selected | detail".
    // Rows that are selected stand in brackets, the focused one bears a star.
    std::string Screen();
    std::string Rows();
    // Of the tree: items with what they hold when they are expanded; a plus at those that can be, and brackets around
    // the selected one: "/[Ada[a.bmp] (Bo)+]".
    std::string Branches() { return Branches(Tree().GetRootItem()); }
    std::string Branches(HTREEITEM hItem);

    Ledger TakeBoxes() { return desktop.TakeMessageBoxes(); }

    void Press(UINT vkey, toolkit::Modifiers modifiers = {});
    void Control(UINT vkey) { Press(vkey, kControl); } // with the key held
    void Enter(const std::string& text);               // types it, and Return
    void Delete();                                     // what is selected, and says yes
    void SetDelay(const std::string& milliseconds);    // of the selected phases, in its field
    void Click(const char* pszName);
    void Select(std::initializer_list<const char*> names); // by clicks, all but the first with Control
    void DoubleClick(const char* pszName);
    void ClickPath(int nPart); // -1: the button that leads up
    void ClickTool(editor::CToolBar& bar, UINT nCommand);
    void ChooseFromMenu(int nMenu, const std::string& command);
    void ChooseAt(CPoint at, const char* pszCommand);               // from the list's own menu
    void Drag(HWND hFrom, CPoint at, std::function<void()> script); // the script moves the mouse on
    void DropOn(HWND hWnd, CPoint at);
    void DropOnTree(const std::string& label) { DropOn(Tree().m_hWnd, PlaceInTree(label)); }
    toolkit::Pixel MiddleOf(HWND hWnd);
    CPoint PlaceOf(const char* pszName);
    CPoint PlaceInTree(const std::string& label);
    static int CountInk(const toolkit::Surface& shown, COLORREF background); // pixels of other colours

    TrashHome trash;
    TempFolder folder;
    BmpReader reader;
    int nClosed = 0;
    editor::EditorApp::Options m_options;

private:
    const int m_nLive;
    std::unique_ptr<editor::EditorApp> m_pApp;
};
