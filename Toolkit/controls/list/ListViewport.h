// The list control's view on its rows: client area, scroll bar, wheel, what lies where, and what is drawn anew.
#pragma once

#include "Toolkit/controls/items/ItemControl.h"
#include "Toolkit/controls/list/ListLayout.h"
#include "Toolkit/controls/list/ListOwner.h"

namespace toolkit
{

class ListMouse;

class ListViewport
{
public:
    struct Hit
    {
        int row = -1; // -1: none
        UINT flags = LVHT_NOWHERE;
    };

    ListViewport(ItemControl& control, ListLayout& layout, ListOwner& owner, ListMouse& mouse)
        : m_control(control), m_layout(layout), m_owner(owner), m_mouse(mouse)
    {}

    Hit HitTest(CPoint client) const;
    void Redraw(int row) const;
    void Relayout(); // the client area, the rows or a measure are new
    void ScrollTo(std::int64_t position);
    void Show(int row) { ScrollTo(m_layout.ScrollToShow(row, false)); }

    void OnSize();
    void OnVScroll(WPARAM wParam);
    void OnMouseWheel(WPARAM wParam);
    BOOL OnScroll(WPARAM, int pixels);
    BOOL OnEnsureVisible(int row, BOOL partIsEnough);
    BOOL OnGetItemRect(int row, RECT* pRect) const;
    int OnHitTest(WPARAM, LVHITTESTINFO* pInfo) const;
    int OnGetCountPerPage() const { return m_layout.FullLinesPerPage() * m_layout.Columns(); }

private:
    void UpdateScrollBar();

    ItemControl& m_control;
    ListLayout& m_layout;
    ListOwner& m_owner;
    ListMouse& m_mouse;
    int m_relayouts = 0; // under way
};

} // namespace toolkit
