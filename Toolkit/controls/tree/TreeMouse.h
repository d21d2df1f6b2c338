// The tree control under the mouse. A press shows at once which item it is on; what it does waits for the release,
// since it may become a drag, which leaves the selection alone.
#pragma once

#include "Toolkit/controls/tree/TreeSelection.h"

namespace toolkit
{

class TreeMouse
{
public:
    TreeMouse(ItemControl& control, TreeItems& items, const TreeOwner& owner, TreeViewport& viewport,
              TreeSelection& selection)
        : m_control(control), m_items(items), m_owner(owner), m_viewport(viewport), m_selection(selection)
    {}

    bool IsPressed() const { return m_press.has_value(); }
    HTREEITEM Pressed() const; // it looks selected
    void Cancel();             // and gives the capture back

    void OnLButtonDown(WPARAM, CPoint at);
    void OnLButtonUp();
    void OnLButtonDblClk(WPARAM, CPoint at);
    void OnRButtonDown(WPARAM, CPoint at) { BeginPress({TakeHit(at), at, true, false}); }
    LRESULT OnRButtonUp(WPARAM wParam, LPARAM lParam);
    void OnMouseMove(WPARAM keys, CPoint at);
    void OnCaptureChanged();

private:
    // A button is down on an item's picture or label, or beside every item, and it is not yet known whether it will
    // click or drag.
    struct Press
    {
        TreeViewport::Hit hit;
        CPoint at;
        bool right;
        bool meansLabel; // unless a double click or a drag follows, its release begins the editing
    };

    TreeViewport::Hit TakeHit(CPoint at); // with the focus; ends what was under way
    void BeginPress(const Press& press);
    void BeginDrag();

    ItemControl& m_control;
    TreeItems& m_items;
    const TreeOwner& m_owner;
    TreeViewport& m_viewport;
    TreeSelection& m_selection;
    std::optional<Press> m_press;
};

} // namespace toolkit
