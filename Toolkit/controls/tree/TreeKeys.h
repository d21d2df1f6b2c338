// The tree control under the keyboard, and how typing finds the next shown item whose label begins with what was typed.
#pragma once

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

    void ForgetTyped() { m_typed.clear(); }

    LRESULT OnKeyDown(UINT vkey, LPARAM lParam);
    LRESULT OnKeyUp(WPARAM wParam, LPARAM lParam);
    void OnChar(char32_t c);

private:
    bool DoKey(UINT vkey); // false: it is none of the control's
    bool ScrollByKey(UINT vkey);
    void MoveTo(ItemIndex item);
    int RowByKey(UINT vkey) const;
    bool IsOpen(ItemIndex item) const;
    void SearchFor(const std::string& letter);
    HTREEITEM FindLabel(const std::string& prefix, bool afterCaret) const;

    ItemControl& m_control;
    TreeItems& m_items;
    const TreeLayout& m_layout;
    const TreeOwner& m_owner;
    TreeViewport& m_viewport;
    TreeSelection& m_selection;
    TreeMouse& m_mouse;
    std::string m_typed;         // the labels searched for
    DWORD m_typedAt = 0;         // when the last letter came
    bool m_bCharIsTaken = false; // the key that is down was a command, or its owner kept it from the search
};

} // namespace toolkit
