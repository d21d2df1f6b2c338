#include "Toolkit/controls/list/ListSelection.h"

#include <algorithm>

namespace toolkit
{

namespace
{

// Up to so many rows lose or gain the selection one by one, each asked about. When more than that lose it, or gain it
// so that all have it, it is one change of all rows: a click after "select all" costs nothing that grows with the list.
constexpr int kOneByOne = 256;

} // namespace

void ListSelection::Change(int row, UINT state, UINT mask)
{
    const UINT oldState = m_rows.State(row);
    UINT newState = (oldState & ~mask) | (state & mask);
    if (newState == oldState || !m_rows.Has(row) || !m_watcher.MayChange(row, oldState, newState))
        return;

    const UINT gained = newState & ~oldState;
    if (gained & LVIS_FOCUSED) {
        Change(m_rows.Focus(), 0, LVIS_FOCUSED);
        if (m_rows.Focus() >= 0 && m_rows.Focus() != row)
            newState &= ~LVIS_FOCUSED; // someone holds on to it
    }

    if (!m_rows.Has(row) || m_rows.State(row) == newState)
        return;
    m_rows.Set(row, newState, oldState ^ newState);
    m_watcher.HasChanged(row, oldState, newState);
}

void ListSelection::ChangeAll(UINT state, UINT mask)
{
    UINT oldState = 0, newState = 0;
    for (const UINT one : {LVIS_FOCUSED, LVIS_SELECTED, LVIS_DROPHILITED}) {
        if (!(mask & one))
            continue;
        if (!(state & one) && m_rows.CountWith(one) > 0)
            oldState |= one;
        if ((state & one) && one != LVIS_FOCUSED && m_rows.CountWith(one) < m_rows.Count())
            newState |= one;
    }
    if (oldState == newState || !m_watcher.MayChange(-1, oldState, newState))
        return;
    m_rows.SetAll(newState, oldState | newState);
    m_watcher.HasChanged(-1, oldState, newState);
}

void ListSelection::DeselectBut(const RowSet& kept)
{
    const RowSet goes = m_rows.Selected().Without(kept);
    if (goes.Count() <= std::max(kOneByOne, m_rows.Selected().Count() - goes.Count()))
        return ChangeEach(goes, 0);
    const RowSet stays = m_rows.Selected().Within(kept);
    ChangeAll(0, LVIS_SELECTED);
    ChangeEach(stays, LVIS_SELECTED);
}

void ListSelection::Select(const RowSet& rows)
{
    const RowSet added = rows.Without(m_rows.Selected());
    const bool thenAll = m_rows.Selected().Count() + added.Count() == m_rows.Count();
    if (thenAll && added.Count() > kOneByOne)
        ChangeAll(LVIS_SELECTED, LVIS_SELECTED);
    else
        ChangeEach(added, LVIS_SELECTED); // however many: each may be refused
}

void ListSelection::ChangeEach(const RowSet& rows, UINT selected)
{
    for (int row = rows.Next(-1); row >= 0; row = rows.Next(row))
        Change(row, selected, LVIS_SELECTED);
}

void ListSelection::SelectOnly(int row)
{
    m_rows.SetAnchor(row);
    DeselectBut(RowSet({row, row + 1}));
    ChooseFocused(row);
}

void ListSelection::Toggle(int row)
{
    m_rows.SetAnchor(row);
    const UINT selected = (m_rows.State(row) ^ LVIS_SELECTED) & LVIS_SELECTED;
    Change(row, selected | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void ListSelection::ExtendTo(int row, bool add, bool allBetween)
{
    if (m_rows.Anchor() < 0)
        m_rows.SetAnchor(m_rows.Focus() >= 0 ? m_rows.Focus() : row);
    const auto [first, last] = std::minmax({m_rows.Anchor(), row});
    const RowSet wanted = allBetween ? RowSet({first, last + 1}) : m_layout.RowsOf(m_layout.BlockBetween(first, last));

    if (!add)
        DeselectBut(wanted);
    Select(wanted);
    Focus(row);
}

} // namespace toolkit
