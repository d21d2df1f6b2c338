#include "Toolkit/controls/list/ListPainter.h"

#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/window/Wnd.h"

namespace toolkit
{

namespace
{

constexpr BYTE kBandFill = 40, kBandEdge = 170; // of 255

} // namespace

void ListPainter::OnPaint() const
{
    const CPaintDC paint(m_control.m_hWnd);
    DrawRows(paint, paint.GetPaintRect());
    m_insertMark.Draw(paint);
    if (const std::optional<CRect> band = m_mouse.BandRect())
        DrawBand(paint, *band);
}

void ListPainter::DrawRows(HDC hdc, const CRect& rcPaint) const
{
    const CellBlock block = m_layout.CellsTouching(rcPaint);
    const int first = m_layout.RowAt(block.firstLine, block.firstColumn);
    if (block.IsEmpty() || first < 0)
        return;
    const int last = m_layout.RowAt(block.endLine - 1, block.endColumn - 1);
    m_owner.Hint({first, last < 0 ? m_rows.Count() : last + 1});

    for (int line = block.firstLine; line < block.endLine; ++line) {
        for (int column = block.firstColumn; column < block.endColumn; ++column) {
            const int row = m_layout.RowAt(line, column);
            if (row < 0 || !RectVisible(hdc, m_layout.CellRect(row)))
                continue;
            const RowFace face = m_owner.AskFace(row);
            if (m_rows.Has(row))
                DrawRow(hdc, row, face);
        }
    }
}

void ListPainter::DrawRow(HDC hdc, int row, const RowFace& face) const
{
    UINT state = m_rows.State(row);
    if (!m_control.IsFocused() && !m_control.Is(LVS_SHOWSELALWAYS))
        state &= ~LVIS_SELECTED;

    // The label tells of the selection already; half of its colour would leave little of a large picture.
    const CPoint at = m_layout.IconRect(row).TopLeft();
    ImageList_Draw(m_control.Images(), face.image, hdc, at.x, at.y, IsMarked(state) ? ILD_BLEND25 : ILD_NORMAL);
    if (m_control.Labels().Edits(row))
        return; // the field stands there
    const RowLabel label = m_layout.PlaceLabel(row, face.text);
    DrawLabel(hdc, label, state);
    if (m_control.IsFocused() && (state & LVIS_FOCUSED))
        DrawFocusRect(hdc, label.lines.empty() ? m_layout.IconRect(row) : label.box);
}

bool ListPainter::IsMarked(UINT state) const
{
    return (state & LVIS_DROPHILITED) || ((state & LVIS_SELECTED) && m_control.IsFocused());
}

void ListPainter::DrawLabel(HDC hdc, const RowLabel& label, UINT state) const
{
    int ground = COLOR_WINDOW, ink = COLOR_WINDOWTEXT;
    if (IsMarked(state)) {
        ground = COLOR_HIGHLIGHT;
        ink = COLOR_HIGHLIGHTTEXT;
    } else if (state & LVIS_SELECTED) {
        ground = COLOR_BTNFACE;
    }
    if (ground != COLOR_WINDOW)
        FillRoundRect(hdc, label.box, 3, GetSysColor(ground));

    const int lineHeight = CurrentTextEngine().LineHeight();
    int y = label.box.top + (label.box.Height() - static_cast<int>(label.lines.size()) * lineHeight) / 2;
    SetTextColor(hdc, GetSysColor(ink));
    for (const LabelLine& line : label.lines) {
        TextOut(hdc, label.box.left + (label.box.Width() - line.width) / 2, y, line.text);
        y += lineHeight;
    }
}

void ListPainter::DrawBand(HDC hdc, const CRect& band) const
{
    const COLORREF color = GetSysColor(COLOR_HIGHLIGHT);
    CRect inside = band;
    inside.DeflateRect(1, 1);
    BlendRect(hdc, inside, color, kBandFill);
    for (const CRect& edge : Difference(band, inside))
        BlendRect(hdc, edge, color, kBandEdge);
}

} // namespace toolkit
