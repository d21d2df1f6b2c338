#include "Toolkit/controls/tree/TreeLayout.h"

namespace toolkit
{

namespace
{
constexpr int kAroundLine = 6, kAroundIcon = 4; // what a row is higher than what it shows
constexpr int kLeftMargin = 2;
constexpr int kRightMargin = 4;
} // namespace

void TreeLayout::SetClient(CSize size)
{
    m_client = size;
    ScrollToRow(m_nTop);
    ScrollToX(m_nX);
}

void TreeLayout::SetRows(int rows)
{
    m_nRows = rows;
    ScrollToRow(m_nTop);
}

void TreeLayout::SetMeasures(int lineHeight, CSize icon)
{
    m_icon = icon;
    const int height = std::max(lineHeight + kAroundLine, static_cast<int>(icon.cy) + kAroundIcon);
    m_nRowHeight = height + height % 2; // even: lines and buttons have a middle
    ScrollToRow(m_nTop);
}

void TreeLayout::SetWidth(int width)
{
    m_nWidth = width;
    ScrollToX(m_nX);
}

CRect TreeLayout::RowRect(int row) const
{
    return CRect(CPoint(0, (row - m_nTop) * m_nRowHeight), CSize(m_client.cx, m_nRowHeight));
}

CRect TreeLayout::ButtonSlot(int row, int level) const
{
    return CRect(CPoint(SlotLeft(level) - m_nX, RowRect(row).top), CSize(kIndent, m_nRowHeight));
}

CRect TreeLayout::IconSlot(int row, int level) const
{
    const CRect button = ButtonSlot(row, level);
    return {button.right, button.top, LabelLeft(level) - m_nX, button.bottom};
}

CPoint TreeLayout::IconAt(int row, int level) const
{
    const CRect slot = IconSlot(row, level);
    return {slot.left + kIconGap, slot.top + (slot.Height() - m_icon.cy) / 2};
}

CRect TreeLayout::LabelBox(int row, int level, int textWidth) const
{
    const CRect rowRect = RowRect(row);
    const int left = LabelLeft(level) - m_nX;
    return {left, rowRect.top, left + textWidth + 2 * kLabelPadding, rowRect.bottom};
}

int TreeLayout::RightOf(int level, int textWidth) const
{
    return LabelLeft(level) + textWidth + 2 * kLabelPadding + kRightMargin;
}

int TreeLayout::RowAt(int y) const
{
    if (y < 0)
        return -1;
    const int row = m_nTop + y / m_nRowHeight;
    return row < m_nRows ? row : -1;
}

RowSpan TreeLayout::RowsTouching(const CRect& client) const
{
    const CRect seen = client & CRect(CPoint(), m_client);
    if (seen.IsRectEmpty())
        return {0, 0};
    const int first = m_nTop + seen.top / m_nRowHeight;
    const int end = m_nTop + (seen.bottom - 1) / m_nRowHeight + 1;
    return {std::min(first, m_nRows), std::min(end, m_nRows)};
}

int TreeLayout::SlotLeft(int level) const
{
    return kLeftMargin + (level - (m_bButtonsAtRoot ? 0 : 1)) * kIndent;
}

int TreeLayout::LabelLeft(int level) const
{
    const int icon = m_icon.cx > 0 ? m_icon.cx + 2 * kIconGap : 0;
    return SlotLeft(level) + kIndent + icon;
}

} // namespace toolkit
