#include "Toolkit/controls/list/RowStates.h"

namespace toolkit
{

namespace
{
constexpr UINT kSetStates[] = {LVIS_SELECTED, LVIS_DROPHILITED}; // those any number of rows may have
}

RowSet* RowStates::SetOf(UINT state)
{
    switch (state) {
    case LVIS_SELECTED:
        return &m_selected;
    case LVIS_DROPHILITED:
        return &m_dropTargets;
    default:
        return nullptr;
    }
}

UINT RowStates::State(int row) const
{
    if (!Has(row))
        return 0;
    UINT state = row == m_nFocus ? LVIS_FOCUSED : 0;
    for (const UINT one : kSetStates)
        if (SetOf(one)->Contains(row))
            state |= one;
    return state;
}

int RowStates::Next(int after, UINT state) const
{
    if (after < -1 || after >= m_nCount - 1)
        return -1;
    if (state & LVIS_FOCUSED)
        return m_nFocus > after && (State(m_nFocus) & state) == state ? m_nFocus : -1;

    // Each set in turn moves the candidate on, until all agree.
    int row = after + 1;
    for (bool moved = true; moved;) {
        moved = false;
        for (const UINT one : kSetStates) {
            if (!(state & one))
                continue;
            const int next = SetOf(one)->Next(row - 1);
            if (next < 0)
                return -1;
            moved |= next != row;
            row = next;
        }
    }
    return row;
}

int RowStates::CountWith(UINT state) const
{
    if (state == LVIS_FOCUSED)
        return m_nFocus >= 0 ? 1 : 0;
    const RowSet* set = SetOf(state);
    return set ? set->Count() : 0;
}

void RowStates::SetCount(int count)
{
    m_nCount = count;
    if (m_nFocus >= count)
        m_nFocus = -1;
    if (m_nAnchor >= count)
        m_nAnchor = -1;
    for (const UINT one : kSetStates)
        SetOf(one)->Truncate(count);
}

void RowStates::Set(int row, UINT state, UINT mask)
{
    if (!Has(row))
        return;
    if (mask & LVIS_FOCUSED) {
        if (state & LVIS_FOCUSED)
            m_nFocus = row;
        else if (m_nFocus == row)
            m_nFocus = -1;
    }
    for (const UINT one : kSetStates) {
        if (!(mask & one))
            continue;
        if (state & one)
            SetOf(one)->Insert({row, row + 1});
        else
            SetOf(one)->Erase({row, row + 1});
    }
}

void RowStates::SetAll(UINT state, UINT mask)
{
    if (mask & LVIS_FOCUSED)
        m_nFocus = -1;
    for (const UINT one : kSetStates)
        if (mask & one)
            *SetOf(one) = state & one ? RowSet({0, m_nCount}) : RowSet();
}

} // namespace toolkit
