// A desktop without a screen: scripted, deterministic, its clock included.
//
// Installs itself when made and goes when destroyed. Screen coordinates are those of the windows, which lie
// where they were created. Input takes effect at once: each call runs the queue until nothing is left, but the
// clock stands still unless Advance is called.
#pragma once

#include "Toolkit/message/Input.h"
#include "Toolkit/run/Run.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace toolkit
{

struct HeadlessDrag;
using KindsAndBytes = std::vector<std::pair<std::string, std::string>>; // MIME types and what is rendered as them

class TOOLKIT_API HeadlessDesktop : public Desktop
{
public:
    HeadlessDesktop();
    ~HeadlessDesktop() override;
    HeadlessDesktop(const HeadlessDesktop&) = delete;
    HeadlessDesktop& operator=(const HeadlessDesktop&) = delete;

    // Mouse, at client coordinates of any window. Buttons pressed stay down until released; a press after a press
    // at the same place is a double click only within the double-click time, so tests Advance between clicks.
    void MoveTo(HWND hWnd, CPoint at);
    void Press(HWND hWnd, CPoint at, MouseButton button = MouseButton::Left);
    void Release(HWND hWnd, CPoint at, MouseButton button = MouseButton::Left);
    void Click(HWND hWnd, CPoint at, MouseButton button = MouseButton::Left); // never the second of a double click
    void DoubleClick(HWND hWnd, CPoint at);
    void Wheel(HWND hWnd, CPoint at, int notches); // up is positive

    // Keys, to the focus. Modifiers hold for mouse and keys until changed.
    void Hold(Modifiers modifiers);
    void Key(UINT vkey);              // down and up
    void Type(std::string_view utf8); // a key for each character

    // Lets the time pass, a timer at a time, each handled when it is due.
    void Advance(DWORD nMilliseconds);
    void SetTicks(DWORD ticks) { m_ticks = ticks; }
    void Run(); // until nothing is left to do at the present time
    // Runs the queue, waiting for the tasks that other threads post, until the condition holds. FALSE when it does
    // not within ten seconds of real time.
    bool RunUntil(const std::function<bool()>& condition);

    // What the user does each time that work which takes long has the windows answer meanwhile.
    void DuringWork(std::function<void()> script) { m_duringWork = std::move(script); }

    // Message boxes: answers in order (IDOK when there is none left), and what was shown: "caption: text".
    void Answer(int nButton) { m_answers.push_back(nButton); }
    std::vector<std::string> TakeMessageBoxes();

    // Menus: what the user chooses in the next ones, by its text without mark and shortcut (nothing when there is no
    // such enabled item, or no text is left); and what was shown, as DescribeMenu gives it, where the last one was.
    void Choose(std::string text) { m_choices.push_back({std::move(text), 0}); }
    std::vector<std::string> TakeMenus() { return std::exchange(m_menus, {}); }
    CPoint LastMenuPlace() const { return m_menuPlace; } // screen
    // Goes beyond the next menu instead of choosing, as WM_NEXTMENU tells it; chooses nothing unless that ends the
    // menu.
    void GoBeyondMenu(UINT vkey) { m_choices.push_back({"", vkey}); }

    void ShowColors(const ColorScheme& scheme); // the user chooses others
    void ShowScale(PixelScale scale);           // moves to a screen of another

    // The tool tip that is shown, "" for none; and what is outside: the folders the user will choose (none is chosen
    // when no answer is left), and what was asked for: "open PATH", "show PATH".
    const std::string& ToolTip() const { return m_toolTip; }
    void AnswerFolder(std::string path) { m_folders.push_back(std::move(path)); }
    void SetWorkArea(const CRect& area) { m_workArea = area; }
    std::vector<std::string> TakeOutside() { return std::exchange(m_outside, {}); }

    // Drags. One of the program's own runs inside the call that begins it, mostly a MoveTo: the script, made before,
    // then plays its user with MoveTo, Hold, Release, Key(VK_ESCAPE), Advance and the two below. A drag that is still
    // going on when its script ends, or that has none, is cancelled. The cursor shows what a drop would do.
    void DuringDrag(std::function<void()> script) { m_dragScripts.push_back(std::move(script)); }
    void DragOut();                      // the mouse leaves the program's windows
    void DropOutside(DROPEFFECT effect); // another program takes the data and confirms what it did with it
    // Another program's drag, of data of its own, begun outside all windows with the left button; driven with MoveTo,
    // Hold, Release and Key(VK_ESCAPE), with no script. It is over when it is dropped or cancelled.
    void DragIn(KindsAndBytes data, DROPEFFECT allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE);
    bool IsDragging() const;
    DROPEFFECT DragEffect() const { return m_dragEffect; } // what a drop would do; after the drag, what it did
    std::optional<std::string> ReadDragged(std::string_view kind);

    // The clipboard as another program sees it: it takes it with data of its own, or leaves it empty, or asks for
    // what the program under test has published.
    void TakeClipboard(KindsAndBytes data);
    void RefuseClipboard(bool bRefuse) { m_bRefusesClipboard = bRefuse; } // to the program under test
    std::string PublishedKinds(); // separated by spaces; "" when nothing is published
    std::optional<std::string> ReadPublished(std::string_view kind);

    std::optional<int> ExitStatus() const { return m_exitStatus; } // nothing until the program has asked to end

    // The pixels of a window, border included, cut out of its top-level window after all painting is done.
    Surface Dump(HWND hWnd);
    CPoint CursorPos() const { return m_cursorPos; }
    Cursor CurrentCursor() const { return m_cursor; }

    DWORD Ticks() override { return m_ticks; }
    ColorScheme GetColorScheme() override { return m_colors; }
    PixelScale GetScreenScale() override { return m_scale; }
    void WindowCreated(HWND) override {}
    void WindowChanged(HWND) override {}
    void WindowPlaced(HWND) override {}
    void WindowDestroyed(HWND) override {}
    void Present(HWND, const Surface&, const CRect&) override {}
    void Quit(int nStatus) override { m_exitStatus = nStatus; }
    void Wake(std::optional<DWORD> inMilliseconds) override;
    void WakeFromThread() override;
    void ProcessEvents() override;
    int ShowMessageBox(HWND hOwner, LPCSTR pszText, LPCSTR pszCaption, UINT nType) override;
    void ShowCursor(Cursor cursor) override { m_cursor = cursor; }
    void ShowToolTip(HWND, const std::string& text, const CRect&) override { m_toolTip = text; }
    CRect GetWorkArea(CPoint) override { return m_workArea; }
    std::optional<std::string> AskFolder(HWND, const std::string&, const std::string&) override;
    std::string OpenOutside(const std::string& path) override { return m_outside.push_back("open " + path), ""; }
    std::string ShowOutside(const std::string& path) override { return m_outside.push_back("show " + path), ""; }
    UINT TrackMenu(HWND hOwner, const std::vector<MenuItem>& items, CPoint screen) override;
    DROPEFFECT RunDrag(std::shared_ptr<OfferedData> data, DROPEFFECT allowed) override;
    BOOL PublishClipboard(std::shared_ptr<OfferedData> data) override;
    std::shared_ptr<OfferedData> FetchClipboard() override { return m_foreign; }

private:
    void LosePublished();
    DWORD KeyState() const; // MK_*, of a drag
    void StepDrag();        // to where the mouse is now, with the present keys
    bool EndIfGone();
    void DropOrCancel(MouseButton button, bool down);
    void EndDrag(DROPEFFECT effect);
    void FinishDragStep();
    void PutButton(HWND hWnd, CPoint at, MouseButton button, bool down);

    std::mutex m_mutex; // of m_bTaskPosted
    std::condition_variable m_taskPosted;
    bool m_bTaskPosted = false;

    DWORD m_ticks = 1000;
    std::optional<int> m_exitStatus;
    std::optional<DWORD> m_wakeAt; // when the queue asked to be run
    Modifiers m_modifiers;
    CPoint m_cursorPos;
    HWND m_hUnderMouse = nullptr; // top-level window
    Cursor m_cursor = Cursor::Arrow;
    std::function<void()> m_duringWork;
    std::deque<int> m_answers;
    std::vector<std::string> m_boxes;
    struct MenuAnswer
    {
        std::string text;
        UINT vkey = 0; // unless 0, a way beyond the menu
    };
    std::deque<MenuAnswer> m_choices;
    ColorScheme m_colors;
    PixelScale m_scale;
    std::string m_toolTip;
    CRect m_workArea;
    std::deque<std::string> m_folders;
    std::vector<std::string> m_outside;
    std::vector<std::string> m_menus;
    CPoint m_menuPlace;
    std::deque<std::function<void()>> m_dragScripts;
    std::unique_ptr<HeadlessDrag> m_drag;
    DROPEFFECT m_dragEffect = DROPEFFECT_NONE;
    std::shared_ptr<OfferedData> m_published, m_foreign; // one of them at most
    bool m_bRefusesClipboard = false;
};

} // namespace toolkit
