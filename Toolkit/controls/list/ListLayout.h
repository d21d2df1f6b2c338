// The icon view's grid, as arithmetic: where each row's cell lies, and which rows lie where.
//
// Rows fill the lines of the grid from the left. As many columns as fit the client area's width share it evenly,
// so that no ragged strip is left at the right; the cell's picture stands in the middle of its top, the label
// below it. No cost depends on the number of rows; heights are 64 bits wide.
//
// Client coordinates count from the top left of what is visible, content coordinates from the top left of row 0.
#pragma once

#include "Toolkit/controls/list/CellBlock.h"

namespace toolkit
{

class TOOLKIT_API ListLayout
{
public:
    static constexpr int kTopPadding = 6; // above the picture
    static constexpr int kLabelGap = 3;   // between picture and label

    // Each keeps the scroll position in range.
    void SetCount(int count);
    void SetClient(CSize size); // keeps the row at the top where it is when the columns change
    void SetCell(CSize size);   // the least width of a cell, and its height
    void SetIcon(CSize size);   // 0 by 0: no pictures, the label takes their place
    void ScrollTo(std::int64_t position);

    int Count() const { return m_nCount; }
    CSize Client() const { return m_client; }
    CSize Cell() const { return m_cell; }
    CSize Icon() const { return m_icon; }
    int Columns() const;
    int Lines() const;
    int LineOf(int row) const { return row / Columns(); }
    int ColumnOf(int row) const { return row % Columns(); }
    int RowAt(int line, int column) const; // -1: no such row
    std::int64_t ContentHeight() const { return ContentHeight(m_client.cx); }
    std::int64_t ContentHeight(int clientWidth) const; // as it would be
    std::int64_t ScrollPosition() const { return m_scroll; }
    std::int64_t MaxScroll() const;

    // Client coordinates. A rectangle far out of sight is moved nearer, so that it fits its 32 bits.
    CRect CellRect(int row) const;
    CRect IconRect(int row) const;
    CRect LabelRoom(int row) const;  // what the label's lines may fill
    int CellAt(CPoint client) const; // the row whose cell it is; -1: none
    CellBlock CellsTouching(const CRect& client) const;
    CRect BlockRect(const CellBlock& block) const; // its visible part

    // Cells whose middle, where picture and label are, is touched.
    CellBlock BodiesTouching(const ContentRect& rect) const;
    // The cells of which the two rows are corners.
    CellBlock BlockBetween(int row, int otherRow) const;

    int FirstVisibleRow() const;  // of which at least a part is visible; 0 when there is none
    int FullLinesPerPage() const; // at least 1
    // The scroll position nearest to the present one at which the row is in sight: all of it as far as it fits, or
    // any part.
    std::int64_t ScrollToShow(int row, bool partIsEnough) const;

private:
    int ColumnLeft(int column) const;
    int ColumnsIn(int clientWidth) const;
    int LabelTop() const;                   // within the cell
    CellBlock Clamp(CellBlock block) const; // into the grid

    int m_nCount = 0;
    CSize m_client, m_icon;
    CSize m_cell{100, 96};
    std::int64_t m_scroll = 0;
};

} // namespace toolkit
