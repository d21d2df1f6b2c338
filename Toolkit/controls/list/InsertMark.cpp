#include "Toolkit/controls/list/InsertMark.h"

#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/SysColors.h"

#include <algorithm>

namespace toolkit
{

namespace
{

constexpr int kStroke = 3, kFoot = 9; // pixels: the line, and its ends

} // namespace

BOOL InsertMark::OnSet(WPARAM, const LVINSERTMARK* pMark)
{
    if (!pMark || (pMark->iItem != -1 && !m_layout.Has(pMark->iItem)))
        return FALSE;
    const bool bAfter = pMark->dwFlags & LVIM_AFTER;
    if (pMark->iItem == m_nRow && bAfter == m_bAfter)
        return TRUE;
    Redraw();
    m_nRow = pMark->iItem;
    m_bAfter = bAfter;
    Redraw();
    return TRUE;
}

BOOL InsertMark::OnGet(WPARAM, LVINSERTMARK* pMark) const
{
    if (!pMark)
        return FALSE;
    *pMark = {sizeof *pMark, m_bAfter ? LVIM_AFTER : 0, m_nRow, 0};
    return TRUE;
}

// Above and below the rows their first and last line count.
BOOL InsertMark::OnHitTest(const POINT* pPoint, LVINSERTMARK* pMark) const
{
    const int count = m_layout.Count();
    if (!pPoint || !pMark || count == 0)
        return FALSE;
    const int top = m_layout.FirstVisibleRow(), bottom = m_layout.LineOf(count - 1);
    const int below = pPoint->y - m_layout.CellRect(top).top;
    const int wanted = m_layout.LineOf(top) + (below < 0 ? -1 : below / m_layout.Cell().cy);
    const int first = m_layout.RowAt(std::clamp(wanted, 0, bottom), 0);
    const int end = wanted > bottom ? first : std::min(first + m_layout.Columns(), count);
    int row = first;
    while (row < end && m_layout.CellRect(row).CenterPoint().x <= pPoint->x)
        ++row;
    const bool bAfter = wanted > bottom || row == end;
    *pMark = {sizeof *pMark, bAfter ? LVIM_AFTER : 0, wanted > bottom ? count - 1 : bAfter ? row - 1 : row, 0};
    return TRUE;
}

CRect InsertMark::Rect() const
{
    const CRect cell = m_layout.CellRect(m_nRow);
    const int most = std::max<int>(0, m_layout.Client().cx - kFoot);
    const int left = std::clamp<int>((m_bAfter ? cell.right : cell.left) - kFoot / 2, 0, most);
    return {left, cell.top + kStroke, left + kFoot, cell.bottom - kStroke};
}

void InsertMark::Redraw() const
{
    const CRect rect = Rect();
    if (m_nRow >= 0)
        InvalidateRect(m_control.m_hWnd, &rect);
}

void InsertMark::Draw(HDC hdc) const
{
    if (m_nRow < 0)
        return;
    const CRect rect = Rect();
    const int middle = (rect.left + rect.right - kStroke) / 2;
    const COLORREF color = GetSysColor(COLOR_HIGHLIGHT);
    FillRoundRect(hdc, {middle, rect.top, middle + kStroke, rect.bottom}, 2, color);
    FillRoundRect(hdc, {rect.left, rect.top, rect.right, rect.top + kStroke}, 2, color);
    FillRoundRect(hdc, {rect.left, rect.bottom - kStroke, rect.right, rect.bottom}, 2, color);
}

} // namespace toolkit
