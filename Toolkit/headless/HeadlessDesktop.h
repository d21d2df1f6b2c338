// A desktop without a screen: scripted, deterministic, its clock included.
//
// Installs itself when made and goes when destroyed. Screen coordinates are those of the windows, which lie
// where they were created. Input takes effect at once: each call runs the queue until nothing is left, but the
// clock stands still unless Advance is called.
#pragma once

#include "Toolkit/headless/HeadlessClipboard.h"
#include "Toolkit/message/Input.h"
#include "Toolkit/run/Run.h"

#include <condition_variable>
#include <mutex>

namespace toolkit
{

struct HeadlessDrag;

class TOOLKIT_API HeadlessDesktop : public HeadlessClipboard
{
public:
    HeadlessDesktop();
    ~HeadlessDesktop() override;
    HeadlessDesktop(const HeadlessDesktop&) = delete;
    HeadlessDesktop& operator=(const HeadlessDesktop&) = delete;

    // Mouse, at client coordinates of any window. Buttons pressed stay down until released; a press after a press
    // at the same place is a double click only within the double-click time, so tests Advance between clicks.
    void MoveTo(HWND hWnd, CPoint at);
    void Press(HWND hWnd, CPoint at, MouseButton button = MouseButton::Left) { PutButton(hWnd, at, button, true); }
    void Release(HWND hWnd, CPoint at, MouseButton button = MouseButton::Left) { PutButton(hWnd, at, button, false); }
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

    std::optional<int> ExitStatus() const { return m_exitStatus; } // nothing until the program has asked to end
    CPoint CursorPos() const { return m_cursorPos; }

    DWORD Ticks() override { return m_ticks; }
    void Quit(int nStatus) override { m_exitStatus = nStatus; }
    void Wake(std::optional<DWORD> inMilliseconds) override;
    void WakeFromThread() override;
    void ProcessEvents() override;
    DROPEFFECT RunDrag(std::shared_ptr<OfferedData> data, DROPEFFECT allowed) override;

private:
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
    std::function<void()> m_duringWork;
    std::deque<std::function<void()>> m_dragScripts;
    std::unique_ptr<HeadlessDrag> m_drag;
    DROPEFFECT m_dragEffect = DROPEFFECT_NONE;
};

} // namespace toolkit
