// The list control under the keyboard.
#pragma once

#include "Toolkit/controls/list/ListMouse.h"

namespace toolkit
{

class ListKeys
{
public:
    ListKeys(ItemControl& control, ListSelection& selection, const ListLayout& layout, ListViewport& viewport,
             ListMouse& mouse)
        : m_control(control), m_selection(selection), m_layout(layout), m_viewport(viewport), m_mouse(mouse)
    {}

    LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);

private:
    void MoveFocus(int row, bool allBetween);
    void PressSpace();

    ItemControl& m_control;
    ListSelection& m_selection;
    const ListLayout& m_layout;
    ListViewport& m_viewport;
    ListMouse& m_mouse;
};

} // namespace toolkit
