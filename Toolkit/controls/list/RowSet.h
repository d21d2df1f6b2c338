// A set of rows, kept as ranges: what is selected in a list, whatever the list's length.
//
// A row, a range, all rows: each is one range. Inserting and erasing cost the logarithm of the number of ranges,
// and the ranges swallowed; counting costs nothing.
#pragma once

#include "Toolkit/base/Types.h"

#include <map>

namespace toolkit
{

// Rows from `first` up to, not including, `end`. Empty when end <= first.
struct RowRange
{
    int first, end;

    bool IsEmpty() const { return end <= first; }
    int Count() const { return IsEmpty() ? 0 : end - first; }
    friend bool operator==(const RowRange&, const RowRange&) = default;
};

class TOOLKIT_API RowSet
{
public:
    RowSet() = default;
    RowSet(RowRange range) { Insert(range); }

    bool IsEmpty() const { return m_nCount == 0; }
    int Count() const { return m_nCount; }
    bool Contains(int row) const;
    int Next(int after) const;           // the first member behind `after` (-1: the first of all); -1: none
    RowRange NextRange(int after) const; // the run of members that Next begins; empty without one

    void Insert(RowRange range);
    void Erase(RowRange range);
    void Truncate(int count) { Erase({count, kNoEnd}); } // only rows below `count` stay

    RowSet Without(const RowSet& other) const; // costs the ranges of both
    RowSet Within(const RowSet& other) const;  // costs the other's ranges, and the ranges of the result

private:
    static constexpr int kNoEnd = 0x7FFFFFFF;
    using Ranges = std::map<int, int>; // first to end; never empty, never touching one another

    Ranges::const_iterator FirstEndingAfter(int row) const; // the first range whose end is beyond the row

    Ranges m_ranges;
    int m_nCount = 0;
};

} // namespace toolkit
