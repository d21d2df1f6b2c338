#include "Toolkit/controls/list/ListControl.h"

#include "Toolkit/window/HandlerTable.h"

namespace toolkit
{

namespace
{

constexpr UINT kStates = LVIS_FOCUSED | LVIS_SELECTED | LVIS_DROPHILITED;

static_assert(kNormalImages == LVSIL_NORMAL);

const bool s_registered = [] {
    RegisterWindowClass(WC_LISTVIEW, [](HWND hWnd) { return std::make_unique<ListControl>(hWnd); });
    return true;
}();

} // namespace

// LVM_SORTITEMS is left to the default, which answers 0: there is nothing to sort.
LRESULT ListControl::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    using Table = HandlerTable<ListControl>;
    static const Table handlers{
        {WM_CREATE, Table::To<&ListControl::OnCreate>},
        {WM_SIZE, Table::To<&ListControl::m_viewport, &ListViewport::OnSize>},
        {WM_PAINT, Table::To<&ListControl::m_painter, &ListPainter::OnPaint>},
        {WM_ERASEBKGND, Table::To<&ListControl::OnEraseBackground>},
        {WM_SETFOCUS, Table::To<&ListControl::OnSetFocus>},
        {WM_KILLFOCUS, Table::To<&ListControl::OnKillFocus>},
        {WM_KEYDOWN, Table::To<&ListControl::m_keys, &ListKeys::OnKeyDown>},
        {WM_LBUTTONDOWN, Table::To<&ListControl::m_mouse, &ListMouse::OnLButtonDown>},
        {WM_LBUTTONUP, Table::To<&ListControl::m_mouse, &ListMouse::OnLButtonUp>},
        {WM_LBUTTONDBLCLK, Table::To<&ListControl::m_mouse, &ListMouse::OnLButtonDblClk>},
        {WM_RBUTTONDOWN, Table::To<&ListControl::m_mouse, &ListMouse::OnRButtonDown>},
        {WM_RBUTTONDBLCLK, Table::To<&ListControl::m_mouse, &ListMouse::OnRButtonDown>},
        {WM_RBUTTONUP, Table::To<&ListControl::m_mouse, &ListMouse::OnRButtonUp>},
        {WM_VSCROLL, Table::To<&ListControl::m_viewport, &ListViewport::OnVScroll>},
        {WM_MOUSEWHEEL, Table::To<&ListControl::m_viewport, &ListViewport::OnMouseWheel>},
        {LVM_GETIMAGELIST, Table::To<&ListControl::OnGetImageList>},
        {LVM_SETIMAGELIST, Table::To<&ListControl::OnSetImageList>},
        {LVM_GETITEMCOUNT, Table::To<&ListControl::OnGetItemCount>},
        {LVM_SETITEMCOUNT, Table::To<&ListControl::OnSetItemCount>},
        {LVM_GETNEXTITEM, Table::To<&ListControl::OnGetNextItem>},
        {LVM_GETSELECTEDCOUNT, Table::To<&ListControl::OnGetSelectedCount>},
        {LVM_GETITEMSTATE, Table::To<&ListControl::OnGetItemState>},
        {LVM_SETITEMSTATE, Table::To<&ListControl::OnSetItemState>},
        {LVM_GETITEMRECT, Table::To<&ListControl::m_places, &ListPlaces::OnGetItemRect>},
        {LVM_HITTEST, Table::To<&ListControl::m_places, &ListPlaces::OnHitTest>},
        {LVM_ENSUREVISIBLE, Table::To<&ListControl::m_viewport, &ListViewport::OnEnsureVisible>},
        {LVM_SCROLL, Table::To<&ListControl::m_viewport, &ListViewport::OnScroll>},
        {LVM_GETTOPINDEX, Table::To<&ListControl::m_viewport, &ListViewport::OnGetTopIndex>},
        {LVM_GETCOUNTPERPAGE, Table::To<&ListControl::m_viewport, &ListViewport::OnGetCountPerPage>},
        {LVM_UPDATE, Table::To<&ListControl::OnUpdate>},
        {LVM_ARRANGE, Table::To<&ListControl::OnArrange>},
        {LVM_SETICONSPACING, Table::To<&ListControl::OnSetIconSpacing>},
        {LVM_EDITLABEL, Table::To<&ListControl::OnEditLabel>},
        {LVM_GETEDITCONTROL, Table::To<&ListControl::OnGetEditControl>},
        {LVM_MOVEEDITLABEL, Table::To<&ListControl::OnMoveEditLabel>},
    };
    return handlers.Call(*this, message, wParam, lParam);
}

LRESULT ListControl::OnSetItemCount(WPARAM wParam, LPARAM)
{
    const int count = static_cast<int>(wParam);
    if (count < 0)
        return FALSE;

    m_selection.SetCount(count);
    m_layout.SetCount(count);
    m_owner.ForgetHint();
    m_mouse.RowsAreNew(count);
    RedrawAll();
    Relayout();
    if (Labels().Item() >= count)
        Labels().Finish(false);
    return TRUE;
}

LRESULT ListControl::OnSetIconSpacing(WPARAM, LPARAM lParam)
{
    const CSize former = m_layout.Cell();
    const CSize cell(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    m_spacing = cell.cx > 0 && cell.cy > 0 ? std::optional(cell) : std::nullopt;
    MeasuresChanged();
    return MAKELONG(former.cx, former.cy);
}

LRESULT ListControl::OnArrange(WPARAM, LPARAM)
{
    RedrawAll(); // the rows always lie in the grid
    Relayout();
    return TRUE;
}

LRESULT ListControl::OnUpdate(WPARAM wParam, LPARAM)
{
    const int row = static_cast<int>(wParam);
    if (!Rows().Has(row))
        return FALSE;
    m_owner.ForgetHint(row); // what it said of it may be out of date
    m_viewport.Redraw(row);
    return TRUE;
}

void ListControl::Measure()
{
    int cx = 0, cy = 0;
    const bool pictures = ImageList_GetIconSize(Images(), &cx, &cy);
    m_layout.SetIcon(pictures ? CSize(cx, cy) : CSize());
    m_layout.SetCell(m_spacing.value_or(m_layout.NaturalCell()));
}

LRESULT ListControl::OnGetNextItem(WPARAM wParam, LPARAM lParam)
{
    constexpr UINT kAsked = LVNI_FOCUSED | LVNI_SELECTED | LVNI_DROPHILITED;
    static_assert(kAsked == kStates); // the flags are the states
    return Rows().Next(static_cast<int>(wParam), static_cast<UINT>(lParam) & kAsked);
}

LRESULT ListControl::OnGetItemState(WPARAM wParam, LPARAM lParam)
{
    return Rows().State(static_cast<int>(wParam)) & static_cast<UINT>(lParam);
}

LRESULT ListControl::OnSetItemState(WPARAM wParam, LPARAM lParam)
{
    const auto* const pItem = reinterpret_cast<const LVITEM*>(lParam);
    const int row = static_cast<int>(wParam);
    if (!pItem || (row != -1 && !Rows().Has(row)))
        return FALSE;

    const UINT mask = pItem->stateMask & kStates;
    const UINT state = pItem->state & mask;
    if (row == -1) {
        m_selection.ChangeAll(state, mask);
        return IsAlive();
    }
    m_selection.Change(row, state, mask);
    return IsAlive() && (Rows().State(row) & mask) == state;
}

void ListControl::HasChanged(int row, UINT oldState, UINT newState)
{
    if (row >= 0)
        m_viewport.Redraw(row);
    else
        RedrawAll();
    m_owner.TellChange(row, oldState, newState);
}

LRESULT ListControl::OnSetFocus(WPARAM, LPARAM)
{
    Labels().GotFocus();
    RedrawChosen();
    Notify(NM_SETFOCUS);
    return 0;
}

LRESULT ListControl::OnKillFocus(WPARAM, LPARAM)
{
    m_mouse.Cancel();
    Labels().StopWaiting();
    RedrawChosen();
    Notify(NM_KILLFOCUS);
    return 0;
}

void ListControl::RedrawChosen() const
{
    const CellBlock visible = m_layout.CellsTouching({CPoint(), m_layout.Client()});
    const RowSet rows = m_layout.RowsOf(visible);
    for (int row = rows.Next(-1); row >= 0; row = rows.Next(row))
        if (Rows().State(row) & (LVIS_SELECTED | LVIS_FOCUSED))
            m_viewport.Redraw(row);
}

LRESULT ListControl::OnEditLabel(WPARAM wParam, LPARAM)
{
    const int row = static_cast<int>(wParam);
    return EditLabel(row, row >= 0);
}

LRESULT ListControl::OnMoveEditLabel(WPARAM wParam, LPARAM)
{
    const int row = static_cast<int>(wParam);
    if (!Labels().Field())
        return FALSE;
    if (Rows().Has(row))
        Labels().MoveTo(row);
    else
        Labels().Finish(false);
    return TRUE;
}

bool ListControl::IsSelected(LPARAM row) const
{
    constexpr UINT kBoth = LVIS_SELECTED | LVIS_FOCUSED;
    return (Rows().State(static_cast<int>(row)) & kBoth) == kBoth && Rows().CountWith(LVIS_SELECTED) == 1;
}

} // namespace toolkit
