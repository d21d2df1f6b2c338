// How the list control draws: only the cells that touch what is to be painted.
#include "Toolkit/controls/list/ListControl.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/window/Wnd.h"

namespace toolkit
{

namespace
{

constexpr BYTE kBandFill = 40, kBandEdge = 170; // of 255

// A rectangle whose corners are cut by a pixel or two.
void FillRounded(HDC hdc, const CRect& rect, COLORREF color)
{
    FillSolidRect(hdc, {rect.left + 2, rect.top, rect.right - 2, rect.top + 1}, color);
    FillSolidRect(hdc, {rect.left + 1, rect.top + 1, rect.right - 1, rect.top + 2}, color);
    FillSolidRect(hdc, {rect.left, rect.top + 2, rect.right, rect.bottom - 2}, color);
    FillSolidRect(hdc, {rect.left + 1, rect.bottom - 2, rect.right - 1, rect.bottom - 1}, color);
    FillSolidRect(hdc, {rect.left + 2, rect.bottom - 1, rect.right - 2, rect.bottom}, color);
}

} // namespace

LRESULT ListControl::OnPaint(WPARAM, LPARAM)
{
    const CPaintDC paint(m_hWnd);
    const HDC hdc = paint;
    const CRect rcPaint = paint.GetPaintRect();
    if (DrawRows(hdc, rcPaint))
        DrawBand(hdc);
    return 0;
}

bool ListControl::DrawRows(HDC hdc, const CRect& rcPaint)
{
    const CellBlock block = m_layout.CellsTouching(rcPaint);
    const int first = m_layout.RowAt(block.firstLine, block.firstColumn);
    if (block.IsEmpty() || first < 0)
        return true;
    const int last = m_layout.RowAt(block.endLine - 1, block.endColumn - 1);
    if (!Hint({first, last < 0 ? m_rows.Count() : last + 1}))
        return false;

    for (int line = block.firstLine; line < block.endLine; ++line) {
        for (int column = block.firstColumn; column < block.endColumn; ++column) {
            const int row = m_layout.RowAt(line, column);
            if (row < 0 || !RectVisible(hdc, m_layout.CellRect(row)))
                continue;
            const std::optional<Face> face = AskFace(row);
            if (!face)
                return false;
            if (m_rows.Has(row))
                DrawRow(hdc, row, *face);
        }
    }
    return true;
}

void ListControl::DrawRow(HDC hdc, int row, const Face& face)
{
    const bool focused = IsFocused();
    UINT state = m_rows.State(row);
    if (!focused && !Is(LVS_SHOWSELALWAYS))
        state &= ~LVIS_SELECTED;

    const Label label = PlaceLabel(row, face.text);
    DrawPicture(hdc, row, face.image, state);
    if (Labels().Edits(row))
        return; // the field stands there
    DrawLabel(hdc, label, state);
    if (focused && (state & LVIS_FOCUSED))
        DrawFocusRect(hdc, label.lines.empty() ? m_layout.IconRect(row) : label.box);
}

void ListControl::DrawPicture(HDC hdc, int row, int image, UINT state)
{
    const bool marked = (state & LVIS_DROPHILITED) || ((state & LVIS_SELECTED) && IsFocused());
    // The label tells of the selection already; half of its colour would leave little of a large picture.
    const CPoint at = m_layout.IconRect(row).TopLeft();
    ImageList_Draw(Images(), image, hdc, at.x, at.y, marked ? ILD_BLEND25 : ILD_NORMAL);
}

void ListControl::DrawLabel(HDC hdc, const Label& label, UINT state)
{
    int ground = COLOR_WINDOW, ink = COLOR_WINDOWTEXT;
    if ((state & LVIS_DROPHILITED) || ((state & LVIS_SELECTED) && IsFocused())) {
        ground = COLOR_HIGHLIGHT;
        ink = COLOR_HIGHLIGHTTEXT;
    } else if (state & LVIS_SELECTED) {
        ground = COLOR_BTNFACE;
    }
    if (ground != COLOR_WINDOW)
        FillRounded(hdc, label.box, GetSysColor(ground));

    const int lineHeight = CurrentTextEngine().LineHeight();
    int y = label.box.top + (label.box.Height() - static_cast<int>(label.lines.size()) * lineHeight) / 2;
    SetTextColor(hdc, GetSysColor(ink));
    for (const LabelLine& line : label.lines) {
        TextOut(hdc, label.box.left + (label.box.Width() - line.width) / 2, y, line.text);
        y += lineHeight;
    }
}

void ListControl::DrawBand(HDC hdc)
{
    if (!m_band)
        return;
    const CRect band = BandRect();
    const COLORREF color = GetSysColor(COLOR_HIGHLIGHT);
    CRect inside = band;
    inside.DeflateRect(1, 1);
    BlendRect(hdc, inside, color, kBandFill);
    for (const CRect& edge : Difference(band, inside))
        BlendRect(hdc, edge, color, kBandEdge);
}

LRESULT ListControl::OnUpdate(WPARAM wParam, LPARAM)
{
    const int row = static_cast<int>(wParam);
    if (!m_rows.Has(row))
        return FALSE;
    if (row >= m_hinted.first && row < m_hinted.end)
        m_hinted = {0, 0}; // what the owner said of it may be out of date
    Redraw(row);
    return TRUE;
}

void ListControl::Redraw(int row)
{
    const CRect visible = m_layout.CellRect(row) & CRect(CPoint(), m_layout.Client());
    if (!visible.IsRectEmpty())
        InvalidateRect(m_hWnd, &visible);
}

void ListControl::RedrawStates(UINT states)
{
    const CellBlock visible = VisibleCells();
    for (int line = visible.firstLine; line < visible.endLine; ++line)
        for (int column = visible.firstColumn; column < visible.endColumn; ++column) {
            const int row = m_layout.RowAt(line, column);
            if (m_rows.State(row) & states)
                Redraw(row);
        }
}

} // namespace toolkit
