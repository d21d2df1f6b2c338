// The list control's view on its rows: client area, scroll bar, wheel, and what is drawn anew.
#pragma once

#include "Toolkit/controls/items/ItemControl.h"
#include "Toolkit/controls/list/ListLayout.h"

namespace toolkit
{

class ListMouse;

class ListViewport
{
public:
    ListViewport(ItemControl& control, ListLayout& layout, ListMouse& mouse)
        : m_control(control), m_layout(layout), m_mouse(mouse)
    {}

    void Redraw(int row) const;
    void Relayout(); // the client area, the rows or a measure are new
    void ScrollTo(std::int64_t position);
    void Show(int row) { ScrollTo(m_layout.ScrollToShow(row, false)); }

    LRESULT OnSize(WPARAM, LPARAM);
    LRESULT OnVScroll(WPARAM wParam, LPARAM);
    LRESULT OnMouseWheel(WPARAM wParam, LPARAM);
    LRESULT OnScroll(WPARAM, LPARAM lParam);
    LRESULT OnEnsureVisible(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetTopIndex(WPARAM, LPARAM) { return m_layout.FirstVisibleRow(); }
    LRESULT OnGetCountPerPage(WPARAM, LPARAM) { return m_layout.FullLinesPerPage() * m_layout.Columns(); }

private:
    void UpdateScrollBar();

    ItemControl& m_control;
    ListLayout& m_layout;
    ListMouse& m_mouse;
    int m_relayouts = 0; // under way
};

} // namespace toolkit
