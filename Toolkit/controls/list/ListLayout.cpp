#include "Toolkit/controls/list/ListLayout.h"

#include <limits>

namespace toolkit
{

namespace
{

constexpr int kLabelMargin = 3; // left and right of the label's room, so that neighbours do not touch
constexpr std::int64_t kFarAway = 1 << 29;

int ToClient(std::int64_t y)
{
    return static_cast<int>(std::clamp(y, -kFarAway, kFarAway));
}

int FloorToInt(std::int64_t value, std::int64_t divisor)
{
    const std::int64_t quotient = value / divisor - (value % divisor < 0 ? 1 : 0);
    return static_cast<int>(std::clamp<std::int64_t>(quotient, -1, std::numeric_limits<int>::max() - 1));
}

} // namespace

void ListLayout::SetCount(int count)
{
    m_nCount = std::max(count, 0);
    ScrollTo(m_scroll);
}

void ListLayout::SetClient(CSize size)
{
    const int top = FirstVisibleRow();
    const std::int64_t into = m_scroll - static_cast<std::int64_t>(LineOf(top)) * m_cell.cy;
    const int formerColumns = Columns();
    m_client = {std::max<int>(size.cx, 0), std::max<int>(size.cy, 0)};
    if (Columns() == formerColumns)
        ScrollTo(m_scroll);
    else
        ScrollTo(static_cast<std::int64_t>(LineOf(top)) * m_cell.cy + into);
}

void ListLayout::SetCell(CSize size)
{
    m_cell = {std::max<int>(size.cx, 1), std::max<int>(size.cy, 1)};
    ScrollTo(m_scroll);
}

void ListLayout::SetIcon(CSize size)
{
    m_icon = size;
}

void ListLayout::ScrollTo(std::int64_t position)
{
    m_scroll = std::clamp<std::int64_t>(position, 0, MaxScroll());
}

int ListLayout::ColumnsIn(int clientWidth) const
{
    return std::max(clientWidth / m_cell.cx, 1);
}

int ListLayout::Columns() const
{
    return ColumnsIn(m_client.cx);
}

int ListLayout::Lines() const
{
    return m_nCount == 0 ? 0 : (m_nCount - 1) / Columns() + 1;
}

int ListLayout::RowAt(int line, int column) const
{
    if (line < 0 || column < 0 || column >= Columns())
        return -1;
    const std::int64_t row = static_cast<std::int64_t>(line) * Columns() + column;
    return row < m_nCount ? static_cast<int>(row) : -1;
}

std::int64_t ListLayout::ContentHeight(int clientWidth) const
{
    if (m_nCount == 0)
        return 0;
    return (static_cast<std::int64_t>(m_nCount - 1) / ColumnsIn(clientWidth) + 1) * m_cell.cy;
}

std::int64_t ListLayout::MaxScroll() const
{
    return std::max<std::int64_t>(ContentHeight() - m_client.cy, 0);
}

int ListLayout::ColumnLeft(int column) const
{
    // A client area narrower than one cell shows the cell's left part.
    const std::int64_t width = std::max<int>(m_client.cx, m_cell.cx);
    return static_cast<int>(width * column / Columns());
}

CRect ListLayout::CellRect(int row) const
{
    const int column = ColumnOf(row);
    const int top = ToClient(static_cast<std::int64_t>(LineOf(row)) * m_cell.cy - m_scroll);
    return {ColumnLeft(column), top, ColumnLeft(column + 1), top + m_cell.cy};
}

CRect ListLayout::IconRect(int row) const
{
    const CRect cell = CellRect(row);
    return {CPoint(cell.left + (cell.Width() - m_icon.cx) / 2, cell.top + kTopPadding), m_icon};
}

CRect ListLayout::LabelRoom(int row) const
{
    CRect room = CellRect(row);
    room.DeflateRect(kLabelMargin, 0);
    room.top += LabelTop();
    return room;
}

int ListLayout::LabelTop() const
{
    return kTopPadding + (m_icon.cy > 0 ? m_icon.cy + kLabelGap : 0);
}

int ListLayout::CellAt(CPoint client) const
{
    const CellBlock block = CellsTouching({client.x, client.y, client.x + 1, client.y + 1});
    return block.IsEmpty() ? -1 : RowAt(block.firstLine, block.firstColumn);
}

CellBlock ListLayout::Clamp(CellBlock block) const
{
    block.firstLine = std::max(block.firstLine, 0);
    block.endLine = std::min(block.endLine, Lines());
    block.firstColumn = std::max(block.firstColumn, 0);
    block.endColumn = std::min(block.endColumn, Columns());
    return block.IsEmpty() ? CellBlock() : block;
}

CellBlock ListLayout::CellsTouching(const CRect& client) const
{
    CellBlock block{FloorToInt(client.top + m_scroll, m_cell.cy),
                    FloorToInt(client.bottom - 1 + m_scroll, m_cell.cy) + 1, 0, Columns()};
    while (block.firstColumn < block.endColumn && ColumnLeft(block.firstColumn + 1) <= client.left)
        ++block.firstColumn;
    while (block.firstColumn < block.endColumn && ColumnLeft(block.endColumn - 1) >= client.right)
        --block.endColumn;
    return Clamp(block);
}

CRect ListLayout::BlockRect(const CellBlock& block) const
{
    const std::int64_t top = static_cast<std::int64_t>(block.firstLine) * m_cell.cy - m_scroll;
    const std::int64_t bottom = static_cast<std::int64_t>(block.endLine) * m_cell.cy - m_scroll;
    return CRect(ColumnLeft(block.firstColumn), ToClient(top), ColumnLeft(block.endColumn), ToClient(bottom)) &
           CRect(CPoint(), m_client);
}

CellBlock ListLayout::BodiesTouching(const ContentRect& rect) const
{
    // The body is as wide as the picture, or as half the cell where that is more, and reaches half way down the label.
    const int bodyBottom = (LabelTop() + m_cell.cy) / 2;
    CellBlock block{FloorToInt(rect.top - bodyBottom, m_cell.cy) + 1,
                    FloorToInt(rect.bottom - 1 - kTopPadding, m_cell.cy) + 1, 0, Columns()};
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

CellBlock ListLayout::BlockBetween(int row, int otherRow) const
{
    const auto [firstLine, lastLine] = std::minmax({LineOf(row), LineOf(otherRow)});
    const auto [firstColumn, lastColumn] = std::minmax({ColumnOf(row), ColumnOf(otherRow)});
    return {firstLine, lastLine + 1, firstColumn, lastColumn + 1};
}

int ListLayout::FirstVisibleRow() const
{
    return std::max(RowAt(FloorToInt(m_scroll, m_cell.cy), 0), 0);
}

int ListLayout::FullLinesPerPage() const
{
    return std::max<int>(m_client.cy / m_cell.cy, 1);
}

std::int64_t ListLayout::ScrollToShow(int row, bool partIsEnough) const
{
    const std::int64_t top = static_cast<std::int64_t>(LineOf(row)) * m_cell.cy;
    const std::int64_t bottom = top + m_cell.cy;
    const bool anyVisible = bottom > m_scroll && top < m_scroll + m_client.cy;
    if (partIsEnough && anyVisible)
        return m_scroll;
    if (top < m_scroll || m_cell.cy > m_client.cy)
        return top;
    return std::max(m_scroll, bottom - m_client.cy);
}

} // namespace toolkit
