#include "Editor/frame/EditorList.h"

#include "Editor/frame/Look.h"
#include "Toolkit/graphics/SysColors.h"

#include <algorithm>

namespace editor
{
namespace
{

bool IsAmong(const std::vector<CStubRef<IAtom>>& sorted, IAtom* pAtom)
{
    const auto before = [](const CStubRef<IAtom>& a, IAtom* p) { return std::less<>()(a.Get(), p); };
    const auto at = std::lower_bound(sorted.begin(), sorted.end(), pAtom, before);
    return at != sorted.end() && at->Get() == pAtom;
}

} // namespace

BEGIN_MESSAGE_MAP(CEditorList, CIconList)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CStubRef<IAtom> CEditorList::GetAtom(int nRow) const
{
    const auto* const pPair = reinterpret_cast<const OBJPAIR*>(GetItemData(nRow));
    return CStubRef<IAtom>::Share(pPair ? pPair->pAtom : nullptr);
}

void CEditorList::FocusSelection()
{
    const int nRow = GetNextItem(-1, LVNI_SELECTED);
    if (nRow < 0)
        return;
    SetItemState(nRow, LVIS_FOCUSED, LVIS_FOCUSED);
    EnsureVisible(nRow, FALSE);
}

CEditorList::State CEditorList::Remember() const
{
    State state;
    state.bAllSelected = AreAllSelected();
    for (int i = -1; !state.bAllSelected && (i = GetNextItem(i, LVNI_SELECTED)) >= 0;)
        state.selected.push_back(GetAtom(i));
    std::sort(state.selected.begin(), state.selected.end(),
              [](const auto& a, const auto& b) { return std::less<>()(a.Get(), b.Get()); });
    state.nFocused = GetFocusedRow();
    state.pFocused = GetAtom(state.nFocused);
    SCROLLINFO scroll{};
    if (::GetScrollInfo(m_hWnd, SB_VERT, &scroll))
        state.nScrolled = scroll.nPos;
    return state;
}

void CEditorList::Restore(const State& state)
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
    SendMessage(LVM_SCROLL, 0, state.nScrolled);
}

BOOL CEditorList::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CIconList::PreCreateWindow(cs))
        return FALSE;
    cs.dwExStyle &= ~WS_EX_CLIENTEDGE;
    return TRUE;
}

// Only where the ground is new: text drawn twice would come out bolder.
void CEditorList::OnPaint()
{
    CRect dirty;
    const BOOL bDirty = ::GetUpdateRect(m_hWnd, &dirty);
    CIconList::OnPaint();
    if (!bDirty || GetItemCount() > 0)
        return;
    CRect client;
    GetClientRect(&client);
    client.DeflateRect(2 * kSpace, 0);
    const HDC hdc = ::GetDC(m_hWnd);
    IntersectClipRect(hdc, dirty);
    DrawTextLine(hdc, client, m_ask(), GetSysColor(COLOR_GRAYTEXT), Align::Center);
    ::ReleaseDC(m_hWnd, hdc);
}

} // namespace editor
