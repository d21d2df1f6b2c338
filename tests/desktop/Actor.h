// The program that the desktops are tried with: one window, which does what it is told and says what happens to it, a
// line at a time. Knows no desktop but the one that is installed.
#pragma once

#include "Toolkit/exchange/DataSource.h"
#include "Toolkit/exchange/DropTarget.h"
#include "tests/desktop/ProbeWnd.h"

#include <set>
#include <sstream>
#include <thread>

// What it offers, copied or dragged, is "from NAME". A drag that comes over it is to move, with Ctrl to copy.
class Actor : private CProbeWnd, private COleDropTarget
{
public:
    using Say = std::function<void(const std::string&)>;

    Actor(const std::string& name, const CRect& place, COLORREF color, Say say);
    ~Actor() override;

    using CProbeWnd::GetSafeHwnd;

    // A command and its arguments, done when the queue runs. Those that say nothing of their own say "done":
    //   heed WORD, ignore  says such entries, too: move leave size moved inactive; active from the beginning
    //   show, hide, place L T R B, vanish
    //   where              says "L,T W,H", as the window knows it
    //   timers N           says "ticked N" after so many of 20 ms each; "too early" when it was so
    //   threads            another thread posts "task 1" and "task 2"
    //   menu X Y           opens one there, in the window: Open, Grid (2), New > Folder (3); says "chose N"
    //   box N              of that type; says "answered N"
    //   copy               says "copied" or "refused"
    //   paste, owner       says what is on the clipboard, and whether that is its own
    //   drag               the next movement with the button held begins one; says "drags", then "dragged EFFECT"
    //   drop HOW           what it makes of the next: take, refuse, hold (and does nothing else any more), vanish,
    //                  forget (what it drags itself goes when that is over its window)
    void Do(const std::string& command);

private:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Note(const std::string& entry) override;
    DROPEFFECT OnDragEnter(CWnd* pWnd, COleDataObject* pData, DWORD dwKeys, CPoint at) override;
    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pData, DWORD dwKeys, CPoint at) override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pData, DROPEFFECT effect, CPoint at) override;

    void Perform(std::istringstream& command);
    void Tick();
    void OpenMenu(CPoint screen);
    void Copy();
    void Paste();
    void Drag();
    std::unique_ptr<COleDataSource> Offer() const;

    const std::string m_name;
    const Say m_say;
    std::set<std::string> m_heeded = {"active"};
    int m_nTicks = 0, m_nTicksWanted = 0;
    DWORD m_timerStart = 0;
    bool m_bDrags = false;
    std::string m_drop = "take";
    std::unique_ptr<COleDataSource> m_dragged;
    std::thread m_thread;
};
