// The list control's selection: every change of a row asks, changes and tells.
#include "Toolkit/controls/list/ListControl.h"

namespace toolkit
{

namespace
{

constexpr UINT kStates = LVIS_FOCUSED | LVIS_SELECTED | LVIS_DROPHILITED;

// Up to so many rows lose or gain the selection one by one, each asked about. When more than that lose it, or gain it
// so that all have it, it is one change of all rows: a click after "select all" costs nothing that grows with the list.
constexpr int kOneByOne = 256;

} // namespace

LRESULT ListControl::OnGetNextItem(WPARAM wParam, LPARAM lParam)
{
    constexpr UINT kAsked = LVNI_FOCUSED | LVNI_SELECTED | LVNI_DROPHILITED;
    static_assert(kAsked == kStates); // the flags are the states
    return m_rows.Next(static_cast<int>(wParam), static_cast<UINT>(lParam) & kAsked);
}

LRESULT ListControl::OnGetItemState(WPARAM wParam, LPARAM lParam)
{
    return m_rows.State(static_cast<int>(wParam)) & static_cast<UINT>(lParam);
}

LRESULT ListControl::OnSetItemState(WPARAM wParam, LPARAM lParam)
{
    const auto* const pItem = reinterpret_cast<const LVITEM*>(lParam);
    const int row = static_cast<int>(wParam);
    if (!pItem || (row != -1 && !m_rows.Has(row)))
        return FALSE;

    const UINT mask = pItem->stateMask & kStates;
    const UINT state = pItem->state & mask;
    if (row == -1)
        return ChangeAll(state, mask);
    return ChangeState(row, state, mask) && (m_rows.State(row) & mask) == state;
}

bool ListControl::ChangeState(int row, UINT state, UINT mask)
{
    const UINT oldState = m_rows.State(row);
    UINT newState = (oldState & ~mask) | (state & mask);
    if (newState == oldState || !m_rows.Has(row))
        return true;

    bool allowed = false;
    if (!AskChange(row, oldState, newState, &allowed))
        return false;
    if (!allowed)
        return true;

    const UINT gained = newState & ~oldState;
    if (gained & LVIS_FOCUSED) {
        const int former = m_rows.Focus();
        if (!ChangeState(former, 0, LVIS_FOCUSED))
            return false;
        if (m_rows.Focus() >= 0 && m_rows.Focus() != row)
            newState &= ~LVIS_FOCUSED; // someone holds on to it
    }

    if (!m_rows.Has(row) || m_rows.State(row) == newState)
        return true;
    m_rows.Set(row, newState, oldState ^ newState);
    Redraw(row);
    return TellChange(row, oldState, newState);
}

bool ListControl::ChangeAll(UINT state, UINT mask)
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
    if (oldState == newState)
        return true;

    bool allowed = false;
    if (!AskChange(-1, oldState, newState, &allowed))
        return false;
    if (!allowed)
        return true;
    m_rows.SetAll(newState, oldState | newState);
    RedrawAll();
    return TellChange(-1, oldState, newState);
}

bool ListControl::DeselectBut(const RowSet& kept)
{
    const RowSet goes = m_rows.Selected().Without(kept);
    if (goes.Count() <= std::max(kOneByOne, m_rows.Selected().Count() - goes.Count()))
        return ChangeEach(goes, 0);
    const RowSet stays = m_rows.Selected().Within(kept);
    return ChangeAll(0, LVIS_SELECTED) && ChangeEach(stays, LVIS_SELECTED);
}

bool ListControl::Select(const RowSet& rows)
{
    const RowSet added = rows.Without(m_rows.Selected());
    const bool bThenAll = m_rows.Selected().Count() + added.Count() == m_rows.Count();
    if (bThenAll && added.Count() > kOneByOne)
        return ChangeAll(LVIS_SELECTED, LVIS_SELECTED);
    return ChangeEach(added, LVIS_SELECTED); // however many: each may be refused
}

bool ListControl::ChangeEach(const RowSet& rows, UINT selected)
{
    for (int row = rows.Next(-1); row >= 0; row = rows.Next(row))
        if (!ChangeState(row, selected, LVIS_SELECTED))
            return false;
    return true;
}

bool ListControl::SelectOnly(int row)
{
    m_rows.SetAnchor(row);
    return DeselectBut(RowSet({row, row + 1})) && ChangeState(row, kSelectedAndFocused, kSelectedAndFocused);
}

bool ListControl::Toggle(int row)
{
    m_rows.SetAnchor(row);
    const UINT selected = (m_rows.State(row) ^ LVIS_SELECTED) & LVIS_SELECTED;
    return ChangeState(row, selected | LVIS_FOCUSED, kSelectedAndFocused);
}

bool ListControl::ExtendTo(int row, bool add, bool allBetween)
{
    if (m_rows.Anchor() < 0)
        m_rows.SetAnchor(m_rows.Focus() >= 0 ? m_rows.Focus() : row);
    const auto [first, last] = std::minmax({m_rows.Anchor(), row});
    const RowSet wanted = allBetween ? RowSet({first, last + 1}) : RowsOf(m_layout.BlockBetween(first, last));

    if (!add && !DeselectBut(wanted))
        return false;
    return Select(wanted) && ChangeState(row, LVIS_FOCUSED, LVIS_FOCUSED);
}

RowSet ListControl::RowsOf(const CellBlock& block) const
{
    RowSet rows;
    for (int line = block.firstLine; line < block.endLine; ++line) {
        const int first = m_layout.RowAt(line, block.firstColumn);
        if (first >= 0)
            rows.Insert({first, std::min(first + block.endColumn - block.firstColumn, m_rows.Count())});
    }
    return rows;
}

} // namespace toolkit
