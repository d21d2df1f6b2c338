// A main window: views side by side, the standard commands by keys and menu, and the program's end.
#pragma once

#include "HostKit/atoms/AtomEditor.h"
#include "HostKit/frame/CommandKey.h"
#include "HostKit/frame/Pane.h"
#include "HostKit/frame/Splitter.h"
#include "Views/host/StateHandler.h"

namespace hostkit
{

// The tree stands at the left, lists at the right; a side that shows nothing gives its room to the other one. Views are
// made as children of their side, lists before the tree: they show what was opened by the time that the tree selects
// it.
//
// Enter opens what is selected, Backspace what it is in; F6 goes to the other side; Ctrl+X, Ctrl+C, Ctrl+V, F2 and
// Delete are what they are everywhere. Closing the window ends the program's run, when it is the first one of the
// program.
class HOSTKIT_API CFrame : public CWnd, public CStateHandler, public PaneFrame
{
public:
    explicit CFrame(CAtomEditor& editor); // borrowed
    ~CFrame() override;

    BOOL Create(LPCSTR pszTitle, CSize client); // a top-level window, not shown yet

    CPane* LeftSide() { return &m_left; }
    CPane* RightSide() { return &m_right; }

    void Open(IAtom* pAtom);                             // as if the user had: every list shows its members
    IAtom* GetOpened() const { return m_pOpened.Get(); } // what was opened last, borrowed; NULL: nothing yet

    // Beside the standard ones and behind them in the menu. A command that cannot be given just now is grayed there,
    // and its key does nothing.
    struct Command
    {
        std::string text;             // in the menu, "&" before its key; empty: not there
        bool bSection = false;        // begins a section of the menu
        CommandKey key;               // or none
        std::function<bool()> canRun; // empty: always
        std::function<void()> run;
    };
    void AddCommand(Command command) { m_commands.push_back(std::move(command)); }

    void AddPane(DWORD kind, HWND hWnd, LPCSTR pszCaption, HICON hIcon) override;
    void RemovePane(DWORD kind, HWND hWnd) override;
    HWND GetMainWindow() const override { return m_hWnd; }
    CMenu* CreateContextMenu() override;
    void OnMoving() override {}
    void OnMoved(const std::string& reason) override;

    BOOL OnAtomEntered(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnCreateAtom(IAtom* pAtom, IAtomContainer* pContainer) override;
    BOOL OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer) override;

protected:
    virtual bool MayClose() { return true; } // the user wants to
    virtual void Arrange();                  // the window has another size, or another side is shown

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg LRESULT OnKeepFocus(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSelectRenamed(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void AddStandardCommands();
    template <class Work>
    void TellFailureOf(UINT nCaptionID, const Work& work);
    void Copy();
    void Cut();
    void Paste();
    void Remove();
    void OpenSelected();
    void OpenAbove();
    void FocusOtherSide();
    bool RunKey(UINT vkey);

    CAtomEditor& m_editor;
    DWORD m_dwHandlerCookie = 0;
    CPane m_left, m_right;
    CSplitter m_splitter;
    int m_nLeftWidth = CSplitter::kUsual;
    std::vector<Command> m_commands;
    CStubRef<IAtom> m_pOpened;
    ActiveMember m_created; // what came last
    ActiveMember m_renamed; // is to be selected when everyone has heard of it
};

} // namespace hostkit
