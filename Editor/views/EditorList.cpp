#include "Editor/views/EditorList.h"

#include "Editor/widgets/Look.h"
#include "Toolkit/graphics/SysColors.h"

#include <algorithm>

namespace editor
{

bool IsAmong(const std::vector<CStubRef<IAtom>>& sorted, IAtom* pAtom)
{
    const auto before = [](const CStubRef<IAtom>& a, IAtom* p) { return std::less<>()(a.Get(), p); };
    const auto at = std::lower_bound(sorted.begin(), sorted.end(), pAtom, before);
    return at != sorted.end() && at->Get() == pAtom;
}

void CEditorList::FocusSelection()
{
    const int nRow = GetNextItem(-1, LVNI_SELECTED);
    if (nRow < 0)
        return;
    SetItemState(nRow, LVIS_FOCUSED, LVIS_FOCUSED);
    m_view.EnsureVisible(nRow, FALSE);
}

CEditorList::State CEditorList::Remember(AllRows all) const
{
    State state;
    state.bAllSelected = all == AllRows::MeansAll && AreAllSelected();
    for (int i = -1; !state.bAllSelected && (i = GetNextItem(i, LVNI_SELECTED)) >= 0;)
        state.selected.push_back(GetAtom(i));
    std::sort(state.selected.begin(), state.selected.end(),
              [](const auto& a, const auto& b) { return std::less<>()(a.Get(), b.Get()); });
    state.nFocused = GetFocusedRow();
    state.pFocused = GetAtom(state.nFocused);
    SCROLLINFO scroll{};
    if (::GetScrollInfo(GetSafeHwnd(), SB_VERT, &scroll))
        state.nScrolled = scroll.nPos;
    return state;
}

void CEditorList::Restore(const State& state)
{
    RestoreStates(state);
    m_view.SendMessage(LVM_SCROLL, 0, state.nScrolled);
}

void CEditorList::RestoreRows(const State& state)
{
    RestoreStates(state);
    if (const int nFocused = GetFocusedRow(); nFocused >= 0)
        m_view.EnsureVisible(nFocused, FALSE);
}

void CEditorList::RestoreStates(const State& state)
{
    if (state.bAllSelected)
        SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    int nFocused = std::min(state.nFocused, GetItemCount() - 1);
    for (int i = 0, count = GetItemCount(); i < count; ++i) {
        const CStubRef<IAtom> pAtom = GetAtom(i);
        if (IsAmong(state.selected, pAtom.Get()))
            SetItemState(i, LVIS_SELECTED, LVIS_SELECTED);
        if (pAtom && pAtom.Get() == state.pFocused.Get())
            nFocused = i;
    }
    if (nFocused >= 0)
        SetItemState(nFocused, LVIS_FOCUSED, LVIS_FOCUSED);
}

int CEditorList::FindRow(IAtom* pAtom) const
{
    int nRow = GetItemCount() - 1;
    while (nRow >= 0 && GetAtom(nRow).Get() != pAtom)
        --nRow;
    return nRow;
}

std::vector<CStubRef<IAtom>> CEditorList::AtomsInSight() const
{
    std::vector<CStubRef<IAtom>> atoms;
    CRect client, row;
    m_view.GetClientRect(&client);
    for (int i = m_view.GetTopIndex(); GetItemRect(i, &row, LVIR_ICON) && row.top < client.bottom; ++i)
        atoms.push_back(GetAtom(i));
    std::sort(atoms.begin(), atoms.end(), [](const auto& a, const auto& b) { return std::less<>()(a.Get(), b.Get()); });
    return atoms;
}

int CEditorList::RowToKeepInSight() const
{
    CRect client, row;
    m_view.GetClientRect(&client);
    const int middle = client.CenterPoint().y;
    if (GetItemRect(GetFocusedRow(), &row, LVIR_ICON) && row.bottom > 0 && row.top < client.bottom)
        return GetFocusedRow();
    SCROLLINFO scroll{};
    if (::GetScrollInfo(GetSafeHwnd(), SB_VERT, &scroll) && scroll.nPos == 0)
        return 0; // whoever is at the top stays there
    int nRow = m_view.GetTopIndex();
    while (nRow + 1 < GetItemCount() && GetItemRect(nRow, &row, LVIR_ICON) && row.bottom <= middle)
        ++nRow;
    return nRow;
}

CStubRef<IAtomContainer> CEditorList::ContainerAt(CPoint client) const
{
    const int nRow = m_view.HitTest(client);
    return nRow < 0 ? CStubRef<IAtomContainer>::Share(m_events.askShown())
                    : CStubRef<IAtomContainer>::From(GetAtom(nRow).Get());
}

// Only where the ground is new: text drawn twice would come out bolder.
void CEditorList::DrawEmptyText(const CRect& dirty) const
{
    if (GetItemCount() > 0)
        return;
    CRect client;
    m_view.GetClientRect(&client);
    client.DeflateRect(2 * kSpace, 0);
    const HDC hdc = ::GetDC(GetSafeHwnd());
    IntersectClipRect(hdc, dirty);
    DrawTextLine(hdc, client, m_events.askEmptyText(), GetSysColor(COLOR_GRAYTEXT), Align::Center);
    ::ReleaseDC(GetSafeHwnd(), hdc);
}

} // namespace editor
