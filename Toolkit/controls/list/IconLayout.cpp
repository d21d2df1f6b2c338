#include "Toolkit/controls/list/IconLayout.h"

#include "Toolkit/controls/items/LabelEditing.h"

#include <algorithm>

namespace toolkit
{

namespace
{

constexpr CSize kAroundPicture{28, 48}; // what a cell has beyond its picture, at least
constexpr int kMinCellWidth = 100;
constexpr int kMinCellLines = 7; // and at least so many line heights wide, for the label's sake
constexpr int kTopPadding = 6;   // above the picture
constexpr int kLabelGap = 3;     // between picture and label
constexpr int kLabelMargin = 3;  // left and right of the label's room, so that neighbours do not touch
constexpr int kLabelLines = 2;
constexpr int kLabelPadding = 4; // left and right of a label's lines, inside its box
constexpr int kLabelEdge = 1;    // above and below them, where the cell has room for it

} // namespace

CSize IconLayout::NaturalCell() const
{
    const int line = CurrentTextEngine().LineHeight();
    const int label = kTopPadding + kLabelGap + 2 * line + 1;
    return {std::max<int>({kMinCellWidth, kMinCellLines * line, m_icon.cx + kAroundPicture.cx}),
            m_icon.cy + std::max<int>(label, kAroundPicture.cy)};
}

int IconLayout::ColumnLeft(int column) const
{
    // A client area narrower than one cell shows the cell's left part.
    const std::int64_t width = std::max<int>(Client().cx, Cell().cx);
    return static_cast<int>(width * column / Columns());
}

CRect IconLayout::IconRect(int row) const
{
    const CRect cell = CellRect(row);
    return {CPoint(cell.left + (cell.Width() - m_icon.cx) / 2, cell.top + kTopPadding), m_icon};
}

CRect IconLayout::LabelRoom(int row) const
{
    CRect room = CellRect(row);
    room.DeflateRect(kLabelMargin, 0);
    room.top += LabelTop();
    return room;
}

int IconLayout::LabelTop() const
{
    return kTopPadding + (m_icon.cy > 0 ? m_icon.cy + kLabelGap : 0);
}

RowLabel IconLayout::PlaceLabel(int row, const std::string& text) const
{
    const CRect room = LabelRoom(row);
    const int lineHeight = std::max(CurrentTextEngine().LineHeight(), 1);
    RowLabel label;
    label.lines = WrapLabel(text, room.Width() - 2 * kLabelPadding, std::min(kLabelLines, room.Height() / lineHeight));
    if (label.lines.empty())
        return label;

    int width = 0;
    for (const LabelLine& line : label.lines)
        width = std::max(width, line.width);
    width = std::min(width + 2 * kLabelPadding, room.Width());
    const int height = static_cast<int>(label.lines.size()) * lineHeight + 2 * kLabelEdge;
    label.box =
        CRect(CPoint(room.left + (room.Width() - width) / 2, room.top), CSize(width, std::min(height, room.Height())));
    return label;
}

// In the middle below the picture, as wide as its text needs, inside the client area as far as that goes.
CRect IconLayout::FieldBox(int row, CSize wanted) const
{
    const CRect room = LabelRoom(row);
    const int width = std::min<int>(std::max<int>(wanted.cx, Cell().cx / 2), Client().cx);
    const int left = std::clamp<int>(room.CenterPoint().x - width / 2, 0, Client().cx - width);
    return {CPoint(left, room.top - LabelEditing::kFieldTop + 1), CSize(width, wanted.cy)};
}

CellBlock IconLayout::BodiesTouching(const ContentRect& rect) const
{
    // The body is as wide as the picture, or as half the cell where that is more, and reaches half way down the label.
    const int bodyBottom = (LabelTop() + Cell().cy) / 2;
    CellBlock block = LinesTouching(rect.top + Cell().cy - bodyBottom, rect.bottom - kTopPadding);
    const auto inset = [&](int column) {
        const int width = ColumnLeft(column + 1) - ColumnLeft(column);
        return (width - std::clamp<int>(m_icon.cx, width / 2, width)) / 2;
    };
    while (block.firstColumn < block.endColumn &&
           ColumnLeft(block.firstColumn + 1) - inset(block.firstColumn) <= rect.left)
        ++block.firstColumn;
    while (block.firstColumn < block.endColumn &&
           ColumnLeft(block.endColumn - 1) + inset(block.endColumn - 1) >= rect.right)
        --block.endColumn;
    return Clamp(block);
}

} // namespace toolkit
