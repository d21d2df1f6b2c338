// The list control under the mouse: clicks, drags and the rubber band.
#pragma once

#include "Toolkit/controls/list/ListPlaces.h"
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
              const ListPlaces& places, ListViewport& viewport)
        : m_control(control),
          m_selection(selection),
          m_layout(layout),
          m_owner(owner),
          m_places(places),
          m_viewport(viewport)
    {}

    bool IsPressed() const { return m_press.has_value(); }
    void Cancel(); // whatever the button began; notifies nobody
    void CancelBand();
    void RowsAreNew(int count);
    std::optional<CRect> BandRect() const; // client, cut near the client area's edges
    void MoveBand();                       // to where the mouse is in the content

    LRESULT OnLButtonDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnRButtonDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnLButtonUp(WPARAM, LPARAM);
    LRESULT OnRButtonUp(WPARAM wParam, LPARAM lParam);
    LRESULT OnLButtonDblClk(WPARAM wParam, LPARAM lParam);

    // From the tracker, which holds the capture while a button is down. Client coordinates.
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

    void BeginPress(WPARAM wParam, CPoint at, bool right);
    void PressRow(Press& press);
    void EndPress(bool right);
    void BeginDrag();
    void RedrawBand(const CRect& former, const CRect& present);
    ContentPoint ToContent(CPoint client) const { return {client.x, client.y + m_layout.ScrollPosition()}; }

    ItemControl& m_control;
    ListSelection& m_selection;
    const ListLayout& m_layout;
    ListOwner& m_owner;
    const ListPlaces& m_places;
    ListViewport& m_viewport;

    std::optional<Press> m_press;
    std::optional<RubberBand> m_band;
    HWND m_hTracker = nullptr; // while a button is down
    CPoint m_trackedAt;
    bool m_bAutoScrolls = false;
};

} // namespace toolkit
