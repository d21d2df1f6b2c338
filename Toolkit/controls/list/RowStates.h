// What a list control knows of its rows: how many there are, which are selected or drop targets, which has
// the focus, and from where Shift extends. Tells nobody; the control asks and tells around each change.
#pragma once

#include "Toolkit/controls/list/ListView.h"
#include "Toolkit/controls/list/RowSet.h"

namespace toolkit
{

class TOOLKIT_API RowStates
{
public:
    int Count() const { return m_nCount; }
    bool Has(int row) const { return row >= 0 && row < m_nCount; }
    int Focus() const { return m_nFocus; }   // -1: none
    int Anchor() const { return m_nAnchor; } // -1: none
    const RowSet& Selected() const { return m_selected; }

    UINT State(int row) const;             // LVIS_* of a row; 0 for a row that is not there
    int Next(int after, UINT state) const; // the next row that has all of LVIS_*; any row for 0; -1: none
    int CountWith(UINT state) const;       // rows with the one state; the cost does not depend on the rows

    void SetCount(int count); // states of rows beyond it are forgotten
    void SetAnchor(int row) { m_nAnchor = row; }
    // Changes the states in `mask` of one row. The focus has one row: the former one loses it.
    void Set(int row, UINT state, UINT mask);
    // The same for all rows at once; the focus can only be taken away.
    void SetAll(UINT state, UINT mask);

private:
    RowSet* SetOf(UINT state);
    const RowSet* SetOf(UINT state) const { return const_cast<RowStates*>(this)->SetOf(state); }

    int m_nCount = 0;
    int m_nFocus = -1;
    int m_nAnchor = -1;
    RowSet m_selected, m_dropTargets;
};

} // namespace toolkit
