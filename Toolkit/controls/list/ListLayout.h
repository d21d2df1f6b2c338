// A list's rows in a grid of cells, as arithmetic: where each row's cell lies, and which rows lie where. How many cells
// stand in a line, and what stands where in a cell, a way of showing rows says, such as the icon view's.
//
// Rows fill the lines of the grid from the left. No cost depends on the number of rows; heights are 64 bits wide.
//
// Client coordinates count from the top left of what is visible, content coordinates from the top left of row 0.
#pragma once

#include "Toolkit/controls/list/CellBlock.h"
#include "Toolkit/controls/list/ListLabel.h"
#include "Toolkit/controls/list/RowSet.h"

namespace toolkit
{

class TOOLKIT_API ListLayout
{
public:
    virtual ~ListLayout() = default;

    // Each keeps the scroll position in range.
    void SetCount(int count);
    void SetClient(CSize size); // keeps the row at the top where it is when the columns change
    void SetCell(CSize size);   // the least width of a cell, and its height
    void ScrollTo(std::int64_t position);

    int Count() const { return m_nCount; }
    bool Has(int row) const { return row >= 0 && row < m_nCount; }
    CSize Client() const { return m_client; }
    CSize Cell() const { return m_cell; }
    int Columns() const { return ColumnsIn(m_client.cx); }
    int LineOf(int row) const { return row / Columns(); }
    int ColumnOf(int row) const { return row % Columns(); }
    int RowAt(int line, int column) const; // -1: no such row
    std::int64_t ContentHeight() const { return ContentHeight(m_client.cx); }
    std::int64_t ContentHeight(int clientWidth) const; // as it would be
    std::int64_t ScrollPosition() const { return m_scroll; }

    // Client coordinates. A rectangle far out of sight is moved nearer, so that it fits its 32 bits.
    CRect CellRect(int row) const;
    int CellAt(CPoint client) const; // the row whose cell it is; -1: none
    CellBlock CellsTouching(const CRect& client) const;

    CellBlock BlockBetween(int row, int otherRow) const; // the cells of which the two rows are corners
    RowSet RowsOf(const CellBlock& block) const;

    int FirstVisibleRow() const; // of which at least a part is visible; 0 when there is none
    int FullLinesPerPage() const { return std::max<int>(m_client.cy / m_cell.cy, 1); } // at least 1
    // The scroll position nearest to the present one at which the row is in sight: all of it as far as it fits, or
    // any part.
    std::int64_t ScrollToShow(int row, bool partIsEnough) const;
    int RowByKey(int focus, UINT vkey) const; // where an arrow or the like moves the focus; -1: nowhere

    // What stands in a cell, in client coordinates.
    virtual CRect IconRect(int row) const = 0;
    virtual CRect LabelRoom(int row) const = 0; // what the label's lines may fill
    virtual RowLabel PlaceLabel(int row, const std::string& text) const = 0;
    virtual CRect FieldBox(int row, CSize wanted) const = 0; // of a label that is edited
    // Cells whose middle, where picture and label are, is touched.
    virtual CellBlock BodiesTouching(const ContentRect& rect) const = 0;

protected:
    virtual int ColumnsIn(int clientWidth) const = 0;
    virtual int ColumnLeft(int column) const = 0;

    // The lines that touch, with all columns; and what of it is in the grid.
    CellBlock LinesTouching(std::int64_t top, std::int64_t bottom) const;
    CellBlock Clamp(CellBlock block) const;

private:
    int Lines() const { return m_nCount == 0 ? 0 : LineOf(m_nCount - 1) + 1; }

    int m_nCount = 0;
    CSize m_client;
    CSize m_cell{100, 96};
    std::int64_t m_scroll = 0;
};

} // namespace toolkit
