// A drag over the program's windows, whoever began it: tells the windows that take drags what happens.
//
// The desktop makes one when a drag comes over a window of the program, and reports to it. A window's edge scrolls
// under a drag that rests there. One at a time.
#pragma once

#include "Toolkit/handle/DropSite.h"

namespace toolkit
{

class TOOLKIT_API DragTracker
{
public:
    // The effects that the data's source allows.
    DragTracker(std::shared_ptr<OfferedData> data, DROPEFFECT allowed);
    ~DragTracker(); // leaves
    DragTracker(const DragTracker&) = delete;
    DragTracker& operator=(const DragTracker&) = delete;

    // What a drop would do now: one of the allowed effects, or none. A move that is not allowed becomes a copy.
    DROPEFFECT GetEffect() const { return m_effect; }

    // A movement, or a change of keys and buttons (MK_*), at a point of a top-level window's surface. Gives GetEffect.
    DROPEFFECT MoveTo(HWND hTop, CPoint at, DWORD dwKeyState);
    void Leave(); // the drag is over none of the program's windows any more, or is cancelled
    // The data is dropped where the drag is. Gives what has become of it.
    DROPEFFECT Drop();

private:
    static void OnScrollTimer();

    HWND FindTarget(HWND hTop, CPoint screen) const;
    void EnterTarget(HWND hTarget, DWORD dwKeyState);
    DROPEFFECT AskOver();
    DROPEFFECT DropHere();
    void UpdateScrolling();
    void Scroll();
    void StopScrolling();
    template <class Call>
    auto Guard(Call call) const -> decltype(call());

    const std::shared_ptr<OfferedData> m_data;
    const DROPEFFECT m_allowed;
    DropSite* m_pSite = nullptr; // the target's, to be looked up again before each use
    DragPlace m_place;
    CPoint m_screen;
    DROPEFFECT m_effect = DROPEFFECT_NONE;
    HWND m_hScrolling = nullptr; // whose timer runs
    bool m_bScrolled = false;    // it has run since the drag came to the edge
};

} // namespace toolkit
