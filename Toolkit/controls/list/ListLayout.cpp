#include "Toolkit/controls/list/ListLayout.h"

#include "Toolkit/message/Messages.h"

#include <limits>

namespace toolkit
{

namespace
{

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

void ListLayout::ScrollTo(std::int64_t position)
{
    m_scroll = std::clamp<std::int64_t>(position, 0, std::max<std::int64_t>(ContentHeight() - m_client.cy, 0));
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

CRect ListLayout::CellRect(int row) const
{
    const int column = ColumnOf(row);
    const int top = ToClient(static_cast<std::int64_t>(LineOf(row)) * m_cell.cy - m_scroll);
    return {ColumnLeft(column), top, ColumnLeft(column + 1), top + m_cell.cy};
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

CellBlock ListLayout::LinesTouching(std::int64_t top, std::int64_t bottom) const
{
    return {FloorToInt(top, m_cell.cy), FloorToInt(bottom - 1, m_cell.cy) + 1, 0, Columns()};
}

CellBlock ListLayout::CellsTouching(const CRect& client) const
{
    CellBlock block = LinesTouching(client.top + m_scroll, client.bottom + m_scroll);
    while (block.firstColumn < block.endColumn && ColumnLeft(block.firstColumn + 1) <= client.left)
        ++block.firstColumn;
    while (block.firstColumn < block.endColumn && ColumnLeft(block.endColumn - 1) >= client.right)
        --block.endColumn;
    return Clamp(block);
}

CellBlock ListLayout::BlockBetween(int row, int otherRow) const
{
    const auto [firstLine, lastLine] = std::minmax({LineOf(row), LineOf(otherRow)});
    const auto [firstColumn, lastColumn] = std::minmax({ColumnOf(row), ColumnOf(otherRow)});
    return {firstLine, lastLine + 1, firstColumn, lastColumn + 1};
}

RowSet ListLayout::RowsOf(const CellBlock& block) const
{
    RowSet rows;
    for (int line = block.firstLine; line < block.endLine; ++line) {
        const int first = RowAt(line, block.firstColumn);
        if (first >= 0)
            rows.Insert({first, std::min(first + block.endColumn - block.firstColumn, m_nCount)});
    }
    return rows;
}

int ListLayout::FirstVisibleRow() const
{
    return std::max(RowAt(FloorToInt(m_scroll, m_cell.cy), 0), 0);
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

// Left and right run through all rows; up and down keep the column as long as the last line has it.
int ListLayout::RowByKey(int focus, UINT vkey) const
{
    const int last = m_nCount - 1;
    const auto lineAway = [&](int lines) {
        const int row = RowAt(std::clamp(LineOf(focus) + lines, 0, LineOf(last)), ColumnOf(focus));
        return row >= 0 ? row : last;
    };
    if (last < 0)
        return -1;

    switch (vkey) {
    case VK_HOME:
        return 0;
    case VK_END:
        return last;
    case VK_LEFT:
        return std::max(focus - 1, 0);
    case VK_RIGHT:
        return std::min(focus + 1, last);
    case VK_UP:
        return focus < 0 ? 0 : lineAway(-1);
    case VK_DOWN:
        return focus < 0 ? 0 : lineAway(1);
    case VK_PRIOR:
        return focus < 0 ? 0 : lineAway(-FullLinesPerPage());
    case VK_NEXT:
        return focus < 0 ? 0 : lineAway(FullLinesPerPage());
    default:
        return -1;
    }
}

} // namespace toolkit
