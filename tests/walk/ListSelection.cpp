// How a list's selection changes, and what the user does to it.
#include "Toolkit/message/Messages.h"
#include "tests/walk/ListModel.h"

#include <algorithm>

namespace
{

constexpr std::size_t kOneByOne = 256; // more rows than that change at once

} // namespace

void ListModel::Mirror(Atom* pAtom, Atom* pContainer, bool bSelected)
{
    m_bSync = false;
    if (!pAtom && pContainer) {
        for (int i = 0; i < CountRows(); ++i)
            if (bSelected || IsSelected(i))
                Change(i, bSelected ? kSelected : 0, kSelected);
    } else if (pAtom && pContainer == m_pContainer && pContainer) {
        const int row = FindRow(pAtom);
        if (row >= 0)
            Change(row, bSelected ? kSelected : 0, bSelected ? kSelected : kSelected | kFocused);
    }
    m_bSync = true;
}

// A row's state changes: everyone is asked, and told by the list that has the focus.
void ListModel::Change(int row, unsigned newState, unsigned mask)
{
    if (row < 0 || row >= CountRows())
        return;
    const unsigned oldState = (IsSelected(row) ? kSelected : 0) | (row == m_focused ? kFocused : 0);
    newState = (oldState & ~mask) | (newState & mask);
    if (newState == oldState)
        return;
    Atom* const pAtom = AtomAt(row);
    const bool bGains = newState & ~oldState & kSelected, bLoses = oldState & ~newState & kSelected;

    if (isVisible) {
        fromSelChange = !hasFocus;
        const bool bAllowed = !pAtom || ((!bGains || Ask(Op::Selecting, pAtom, m_pContainer)) &&
                                         (!bLoses || Ask(Op::Deselecting, pAtom, m_pContainer)));
        m_bSync |= pAtom != nullptr;
        if (!bAllowed)
            return;
    }
    if (newState & ~oldState & kFocused)
        Change(m_focused, 0, kFocused);
    m_selected[static_cast<std::size_t>(row)] = newState & kSelected;
    if (newState & kFocused)
        m_focused = row;
    else if (m_focused == row)
        m_focused = -1;
    if (!m_bSync || !isVisible || (!bGains && !bLoses) || !pAtom)
        return;
    m_bSync = false;
    if (m_model.Focus() == m_view)
        Tell(bGains ? Op::Selected : Op::Deselected, pAtom, m_pContainer);
    m_bSync = true;
}

// All rows at once: nobody is asked.
void ListModel::ChangeAll(bool bSelected)
{
    const int nSelected = CountSelected();
    if (bSelected ? nSelected == CountRows() : nSelected == 0)
        return;
    m_selected.assign(m_selected.size(), bSelected);
    if (m_bSync && isVisible)
        Tell(bSelected ? Op::Selected : Op::Deselected, nullptr, m_pContainer);
}

int ListModel::CountSelected() const
{
    return static_cast<int>(std::ranges::count(m_selected, true));
}

void ListModel::ClearSelection()
{
    for (int i = 0; i < CountRows(); ++i)
        if (IsSelected(i))
            Change(i, 0, kSelected);
    Change(m_focused, 0, kFocused);
}

void ListModel::DeselectBut(const std::vector<bool>& kept)
{
    std::vector<int> goes, stays;
    for (int i = 0; i < CountRows(); ++i)
        if (IsSelected(i))
            (kept[static_cast<std::size_t>(i)] ? stays : goes).push_back(i);
    const bool bAtOnce = goes.size() > std::max(kOneByOne, stays.size());
    if (bAtOnce)
        ChangeAll(false);
    for (const int row : bAtOnce ? stays : goes)
        Change(row, bAtOnce ? kSelected : 0, kSelected);
}

void ListModel::SelectOnly(int row)
{
    m_anchor = row;
    std::vector<bool> kept(m_selected.size());
    kept[static_cast<std::size_t>(row)] = true;
    DeselectBut(kept);
    Change(row, kSelected | kFocused, kSelected | kFocused);
}

void ListModel::Toggle(int row)
{
    m_anchor = row;
    const bool bSelected = IsSelected(row);
    Change(row, (bSelected ? 0 : kSelected) | kFocused, kSelected | kFocused);
}

// From the anchor to the row: as a rectangle, or all rows between.
std::vector<bool> ListModel::Between(int row, bool bAllBetween) const
{
    const auto [first, last] = std::minmax({m_anchor, row});
    const int nColumns = std::max(m_model.layout.Columns(m_view), 1);
    const auto [left, right] = std::minmax({first % nColumns, last % nColumns});
    std::vector<bool> between(m_selected.size());
    for (int i = 0; i < CountRows(); ++i) {
        const bool bLine = i / nColumns >= first / nColumns && i / nColumns <= last / nColumns;
        const bool bColumn = i % nColumns >= left && i % nColumns <= right;
        between[static_cast<std::size_t>(i)] = bAllBetween ? i >= first && i <= last : bLine && bColumn;
    }
    return between;
}

void ListModel::ExtendTo(int row, bool bAdd, bool bAllBetween)
{
    if (m_anchor < 0)
        m_anchor = m_focused >= 0 ? m_focused : row;
    const std::vector<bool> wanted = Between(row, bAllBetween);
    if (!bAdd)
        DeselectBut(wanted);
    std::size_t nAdded = 0;
    for (std::size_t i = 0; i < wanted.size(); ++i)
        nAdded += wanted[i] && !m_selected[i];
    if (nAdded > kOneByOne && CountSelected() + static_cast<int>(nAdded) == CountRows()) {
        ChangeAll(true);
    } else {
        for (int i = 0; i < CountRows(); ++i)
            if (wanted[static_cast<std::size_t>(i)])
                Change(i, kSelected, kSelected);
    }
    Change(row, kFocused, kFocused);
}

bool ListModel::AnnounceSelection()
{
    for (int i = 0; !fromSelChange && i < CountRows(); ++i) {
        Atom* const pAtom = AtomAt(i);
        if (!IsSelected(i) || !pAtom)
            continue;
        Ask(Op::Selecting, pAtom, m_pContainer);
        Tell(Op::Selected, pAtom, m_pContainer);
    }
    return true;
}

void ListModel::Click(const Hit& hit, Keys keys, bool right)
{
    labelDue.reset();
    if (!TakeFocus())
        return;
    if (hit.row < 0) {
        if (!keys.shift && !keys.control)
            DeselectAll();
        return;
    }
    const bool bSelected = IsSelected(hit.row);
    const bool bMeansLabel = !right && !keys.shift && !keys.control && hit.part == Part::Label &&
                             m_model.Now() - focusedAt >= 500 && bSelected && m_focused == hit.row &&
                             CountSelected() == 1;
    if (right) {
        if (bSelected)
            Change(hit.row, kFocused, kFocused);
        else if (keys.control)
            Change(hit.row, kSelected | kFocused, kSelected | kFocused);
        else
            SelectOnly(hit.row);
    } else if (keys.shift) {
        ExtendTo(hit.row, keys.control, false);
    } else if (keys.control) {
        Toggle(hit.row);
    } else {
        if (bSelected)
            Change(hit.row, kFocused, kFocused);
        SelectOnly(hit.row);
    }
    if (bMeansLabel) {
        m_clicked = hit.row;
        labelDue = m_model.Now();
    }
}

void ListModel::PressAgain(const Hit& hit)
{
    if (hit.row < 0)
        return DeselectAll();
    IsSelected(hit.row) ? Change(hit.row, kFocused, kFocused) : SelectOnly(hit.row);
    if (Atom* const pAtom = AtomAt(hit.row))
        m_model.Announce(Op::Entered, pAtom, m_pContainer);
}

void ListModel::Type(char c)
{
    if (c == ' ')
        Key(VK_SPACE, {});
}

int ListModel::RowOfKey(UINT vkey) const
{
    const int nColumns = std::max(m_model.layout.Columns(m_view), 1), last = CountRows() - 1;
    const auto lineAway = [&](int nLines) {
        if (m_focused < 0)
            return 0;
        const int line = std::clamp(m_focused / nColumns + nLines, 0, last / nColumns);
        return std::min(line * nColumns + m_focused % nColumns, last);
    };
    const std::map<UINT, int> rows{{VK_HOME, 0},
                                   {VK_END, last},
                                   {VK_LEFT, std::max(m_focused - 1, 0)},
                                   {VK_RIGHT, std::min(m_focused + 1, last)},
                                   {VK_UP, lineAway(-1)},
                                   {VK_DOWN, lineAway(1)},
                                   {VK_PRIOR, lineAway(-page)},
                                   {VK_NEXT, lineAway(page)}};
    const auto found = rows.find(vkey);
    return found == rows.end() ? -1 : found->second;
}

void ListModel::Key(UINT vkey, Keys keys)
{
    if (vkey == 'A' && keys.control)
        return ChangeAll(true);
    if (vkey == VK_SPACE && m_focused >= 0) {
        if (keys.control)
            return Toggle(m_focused);
        return keys.shift ? ExtendTo(m_focused, false, false) : SelectOnly(m_focused);
    }
    const int row = CountRows() > 0 ? RowOfKey(vkey) : -1;
    if (row < 0)
        return;
    if (keys.shift)
        ExtendTo(row, keys.control, vkey == VK_HOME || vkey == VK_END);
    else if (keys.control)
        Change(row, kFocused, kFocused);
    else
        SelectOnly(row);
}
