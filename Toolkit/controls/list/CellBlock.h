// Rectangles of a list's content: of its pixels and of its cells.
#pragma once

#include "Toolkit/base/Geometry.h"

#include <cstdint>
#include <vector>

namespace toolkit
{

// Pixels, counted from the top left of row 0: the height of a long list does not fit 32 bits.
struct ContentPoint
{
    int x;
    std::int64_t y;
};
struct ContentRect
{
    int left;
    std::int64_t top;
    int right;
    std::int64_t bottom;
};

// Cells: lines and columns up to, not including, the ends.
struct CellBlock
{
    int firstLine = 0, endLine = 0;
    int firstColumn = 0, endColumn = 0;

    bool IsEmpty() const { return endLine <= firstLine || endColumn <= firstColumn; }
    bool Contains(int line, int column) const
    {
        return line >= firstLine && line < endLine && column >= firstColumn && column < endColumn;
    }
    friend bool operator==(const CellBlock&, const CellBlock&) = default;
};

// What is in the first but not in the second, in pieces that do not overlap; none of them is empty.
TOOLKIT_API std::vector<CellBlock> Difference(const CellBlock& block, const CellBlock& without);
TOOLKIT_API std::vector<CRect> Difference(const CRect& rect, const CRect& without);

} // namespace toolkit
