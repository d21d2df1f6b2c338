// How the list control draws: only the cells that touch what is to be painted.
#pragma once

#include "Toolkit/controls/list/InsertMark.h"
#include "Toolkit/controls/list/ListMouse.h"

namespace toolkit
{

class ListPainter
{
public:
    ListPainter(ItemControl& control, const RowStates& rows, const ListLayout& layout, ListOwner& owner,
                const ListMouse& mouse, const InsertMark& insertMark)
        : m_control(control), m_rows(rows), m_layout(layout), m_owner(owner), m_mouse(mouse), m_insertMark(insertMark)
    {}

    void OnPaint() const;

private:
    void DrawRows(HDC hdc, const CRect& rcPaint) const;
    void DrawRow(HDC hdc, int row, const RowFace& face) const;
    void DrawLabel(HDC hdc, const RowLabel& label, UINT state) const;
    void DrawBand(HDC hdc, const CRect& band) const;
    bool IsMarked(UINT state) const; // stands out, rather than just being selected

    ItemControl& m_control;
    const RowStates& m_rows;
    const ListLayout& m_layout;
    ListOwner& m_owner;
    const ListMouse& m_mouse;
    const InsertMark& m_insertMark;
};

} // namespace toolkit
