// The list control under the mouse: clicks, drags and the rubber band.
#pragma once

#include "Toolkit/controls/list/ListSelection.h"
#include "Toolkit/controls/list/ListViewport.h"
#include "Toolkit/controls/list/RubberBand.h"

#include <optional>

namespace toolkit
{

class ListMouse
{
public:
    ListMouse(ItemControl& control, ListSelection& selection, const ListLayout& layout, ListOwner& owner,
              ListViewport& viewport)
        : m_control(control), m_selection(selection), m_layout(layout), m_owner(owner), m_viewport(viewport)
    {}

    bool IsPressed() const { return m_press.has_value(); }
    void Cancel(); // whatever the button began; notifies nobody
    void CancelBand();
    void RowsAreNew(int count);
    std::optional<CRect> BandRect() const; // client, cut near the client area's edges
    void MoveBand();                       // to where the mouse is in the content

    void OnLButtonDown(WPARAM keys, CPoint at) { BeginPress(keys, at, false); }
    void OnRButtonDown(WPARAM keys, CPoint at) { BeginPress(keys, at, true); }
    void OnLButtonUp() { EndPress(false); } // without a press there is nothing to end
    LRESULT OnRButtonUp(WPARAM wParam, LPARAM lParam);
    void OnLButtonDblClk(WPARAM keys, CPoint at);

    // From the tracker, an invisible child that holds the capture while a button is down. It sees movements and timers
    // that a class derived from the list keeps to itself, so that dragging and the rubber band work whatever that class
    // does with its own messages. Client coordinates.
    void TrackMove(WPARAM keys, CPoint at);
    void AutoScroll();
    void TrackingLost(HWND hTracker);

private:
    // A button is down, and it is not yet known whether it will click, drag or draw a rubber band.
    struct Press
    {
        enum class OnRelease
        {
            Nothing,
            SelectOnly,
            Toggle,
            Extend
        };

        int row; // -1: on empty space
        CPoint at;
        ContentPoint content;
        bool right, shift, control;
        OnRelease onRelease = OnRelease::Nothing;
        bool meansLabel = false; // unless a double click or a drag follows, its release begins the editing
    };

    void BeginPress(WPARAM keys, CPoint at, bool right);
    void PressRow(Press& press);
    void EndPress(bool right);
    void BeginDrag();
    void RedrawBand(const CRect& former, const CRect& present);
    ContentPoint ToContent(CPoint client) const { return {client.x, client.y + m_layout.ScrollPosition()}; }

    ItemControl& m_control;
    ListSelection& m_selection;
    const ListLayout& m_layout;
    ListOwner& m_owner;
    ListViewport& m_viewport;

    std::optional<Press> m_press;
    std::optional<RubberBand> m_band;
    HWND m_hTracker = nullptr; // while a button is down
    CPoint m_trackedAt;
    bool m_bAutoScrolls = false;
};

} // namespace toolkit
