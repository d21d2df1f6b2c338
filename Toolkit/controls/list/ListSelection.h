// Which of a list's rows are selected, focused or drop targets: every change of a row asks, changes and tells. Knows no
// window.
#pragma once

#include "Toolkit/controls/list/ListLayout.h"
#include "Toolkit/controls/list/RowStates.h"

namespace toolkit
{

// Asked and told of each change, LVIS_*; row -1 stands for all rows. Either may change anything in its turn.
class SelectionWatcher
{
public:
    virtual bool MayChange(int row, UINT oldState, UINT newState) = 0;
    virtual void HasChanged(int row, UINT oldState, UINT newState) = 0;

protected:
    ~SelectionWatcher() = default;
};

class TOOLKIT_API ListSelection
{
public:
    ListSelection(const ListLayout& layout, SelectionWatcher& watcher) : m_layout(layout), m_watcher(watcher) {}

    const RowStates& Rows() const { return m_rows; }
    bool IsSelected(int row) const { return (m_rows.State(row) & LVIS_SELECTED) != 0; }
    void SetCount(int count) { m_rows.SetCount(count); } // asks and tells nobody

    void Change(int row, UINT state, UINT mask);
    void ChangeAll(UINT state, UINT mask);
    void ChooseFocused(int row) { Change(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED); }
    void Focus(int row) { Change(row, LVIS_FOCUSED, LVIS_FOCUSED); }
    void DeselectBut(const RowSet& kept);
    void SelectOnly(int row); // and the focus and the anchor
    void Toggle(int row);     // and the focus and the anchor
    // Selects what lies between the anchor and the row, as a block of the layout or as all rows from one to the other;
    // the rest stays selected only with `add`. The row gets the focus, the anchor stays.
    void ExtendTo(int row, bool add, bool allBetween = false);

private:
    void Select(const RowSet& rows);
    void ChangeEach(const RowSet& rows, UINT selected); // LVIS_SELECTED or 0

    const ListLayout& m_layout;
    SelectionWatcher& m_watcher;
    RowStates m_rows;
};

} // namespace toolkit
