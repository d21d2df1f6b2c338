// The tree control under the keyboard.
#pragma once

#include "Toolkit/controls/items/TypeAhead.h"
#include "Toolkit/controls/tree/TreeMouse.h"

namespace toolkit
{

class TreeKeys
{
public:
    TreeKeys(ItemControl& control, TreeItems& items, const TreeLayout& layout, const TreeOwner& owner,
             TreeViewport& viewport, TreeSelection& selection, TreeMouse& mouse)
        : m_control(control),
          m_items(items),
          m_layout(layout),
          m_owner(owner),
          m_viewport(viewport),
          m_selection(selection),
          m_mouse(mouse)
    {}

    void ForgetTyped() { m_typeAhead.Forget(); }

    LRESULT OnKeyDown(UINT vkey, LPARAM lParam);
    LRESULT OnKeyUp(WPARAM wParam, LPARAM lParam);
    void OnChar(char32_t c);

private:
    bool DoKey(UINT vkey); // false: it is none of the control's
    bool ScrollByKey(UINT vkey);
    void MoveTo(ItemIndex item);
    int RowByKey(UINT vkey) const;
    bool IsOpen(ItemIndex item) const;
    HTREEITEM FindLabel(const std::string& prefix, bool afterCaret) const;

    ItemControl& m_control;
    TreeItems& m_items;
    const TreeLayout& m_layout;
    const TreeOwner& m_owner;
    TreeViewport& m_viewport;
    TreeSelection& m_selection;
    TreeMouse& m_mouse;
    TypeAhead m_typeAhead;
    bool m_bCharIsTaken = false; // the key that is down was a command, or its owner kept it from the search
};

} // namespace toolkit
