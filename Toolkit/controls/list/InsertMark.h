// The list control's mark between rows: where something that is dragged would be put.
#pragma once

#include "Toolkit/controls/items/ItemControl.h"
#include "Toolkit/controls/list/ListLayout.h"
#include "Toolkit/controls/list/ListView.h"

namespace toolkit
{

// Between the last row of a line and the first one of the next it stands at that end of the two which was asked for.
class InsertMark
{
public:
    InsertMark(ItemControl& control, const ListLayout& layout) : m_control(control), m_layout(layout) {}

    BOOL OnSet(WPARAM, const LVINSERTMARK* pMark);
    BOOL OnGet(WPARAM, LVINSERTMARK* pMark) const;
    BOOL OnHitTest(const POINT* pPoint, LVINSERTMARK* pMark) const;

    void Forget() { m_nRow = -1; } // all is drawn anew
    void Draw(HDC hdc) const;

private:
    CRect Rect() const; // client
    void Redraw() const;

    ItemControl& m_control;
    const ListLayout& m_layout;
    int m_nRow = -1; // -1: there is none
    bool m_bAfter = false;
};

} // namespace toolkit
