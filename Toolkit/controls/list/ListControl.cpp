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
        {WM_KEYDOWN, Table::To<&ListControl::OnKeyDown>},
        {WM_CHAR, Table::To<&ListControl::OnChar>},
        {LVM_SETTYPEAHEAD, Table::To<&ListControl::OnSetTypeAhead>},
        {WM_LBUTTONDOWN, Table::To<&ListControl::m_mouse, &ListMouse::OnLButtonDown>},
        {WM_LBUTTONUP, Table::To<&ListControl::m_mouse, &ListMouse::OnLButtonUp>},
        {WM_LBUTTONDBLCLK, Table::To<&ListControl::m_mouse, &ListMouse::OnLButtonDblClk>},
        {WM_RBUTTONDOWN, Table::To<&ListControl::m_mouse, &ListMouse::OnRButtonDown>},
        {WM_RBUTTONDBLCLK, Table::To<&ListControl::m_mouse, &ListMouse::OnRButtonDown>},
        {WM_RBUTTONUP, Table::To<&ListControl::m_mouse, &ListMouse::OnRButtonUp>},
        {WM_VSCROLL, Table::To<&ListControl::m_viewport, &ListViewport::OnVScroll>},
        {WM_MOUSEWHEEL, Table::To<&ListControl::m_viewport, &ListViewport::OnMouseWheel>},
        {LVM_GETIMAGELIST, Table::To<&ListControl::OnGetImageList>},
        {WM_FONTCHANGE, Table::To<&ListControl::OnFontChange>},
        {LVM_SETIMAGELIST, Table::To<&ListControl::OnSetImageList>},
        {LVM_GETITEMCOUNT, Table::To<&ListControl::m_layout, &ListLayout::Count>},
        {LVM_SETITEMCOUNT, Table::To<&ListControl::OnSetItemCount>},
        {LVM_GETNEXTITEM, Table::To<&ListControl::OnGetNextItem>},
        {LVM_GETSELECTEDCOUNT, Table::To<&ListControl::OnGetSelectedCount>},
        {LVM_GETITEMSTATE, Table::To<&ListControl::OnGetItemState>},
        {LVM_SETITEMSTATE, Table::To<&ListControl::OnSetItemState>},
        {LVM_GETITEMRECT, Table::To<&ListControl::m_viewport, &ListViewport::OnGetItemRect>},
        {LVM_HITTEST, Table::To<&ListControl::m_viewport, &ListViewport::OnHitTest>},
        {LVM_ENSUREVISIBLE, Table::To<&ListControl::m_viewport, &ListViewport::OnEnsureVisible>},
        {LVM_SCROLL, Table::To<&ListControl::m_viewport, &ListViewport::OnScroll>},
        {LVM_GETTOPINDEX, Table::To<&ListControl::m_layout, &ListLayout::FirstVisibleRow>},
        {LVM_GETCOUNTPERPAGE, Table::To<&ListControl::m_viewport, &ListViewport::OnGetCountPerPage>},
        {LVM_UPDATE, Table::To<&ListControl::OnUpdate>},
        {LVM_ARRANGE, Table::To<&ListControl::OnArrange>},
        {LVM_SETICONSPACING, Table::To<&ListControl::OnSetIconSpacing>},
        {LVM_SETINSERTMARK, Table::To<&ListControl::m_insertMark, &InsertMark::OnSet>},
        {LVM_GETINSERTMARK, Table::To<&ListControl::m_insertMark, &InsertMark::OnGet>},
        {LVM_INSERTMARKHITTEST, Table::To<&ListControl::m_insertMark, &InsertMark::OnHitTest>},
        {LVM_EDITLABEL, Table::To<&ListControl::OnEditLabel>},
        {LVM_GETEDITCONTROL, Table::To<&ListControl::OnGetEditControl>},
        {LVM_MOVEEDITLABEL, Table::To<&ListControl::OnMoveEditLabel>},
    };
    return handlers.Call(*this, message, wParam, lParam);
}

BOOL ListControl::OnSetItemCount(int count)
{
    if (count < 0)
        return FALSE;

    m_selection.SetCount(count);
    m_layout.SetCount(count);
    m_owner.ForgetHint();
    m_insertMark.Forget();
    m_mouse.RowsAreNew(count);
    RedrawAll();
    Relayout();
    NotifyWinEvent(EVENT_OBJECT_REORDER, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
    if (Labels().Item() >= count)
        Labels().Finish(false);
    return TRUE;
}

LRESULT ListControl::OnSetIconSpacing(WPARAM, CPoint cell)
{
    const CSize former = m_layout.Cell();
    m_spacing = cell.x > 0 && cell.y > 0 ? std::optional(CSize(cell.x, cell.y)) : std::nullopt;
    MeasuresChanged();
    return MAKELONG(former.cx, former.cy);
}

BOOL ListControl::OnArrange()
{
    RedrawAll(); // the rows always lie in the grid
    Relayout();
    return TRUE;
}

BOOL ListControl::OnUpdate(int row)
{
    if (!Rows().Has(row))
        return FALSE;
    m_owner.ForgetHint(row); // what it said of it may be out of date
    m_viewport.Redraw(row);
    TellName(row);
    return TRUE;
}

void ListControl::Measure()
{
    m_layout.SetIcon(ImageSize());
    m_layout.SetCell(m_spacing.value_or(m_layout.NaturalCell()));
}

int ListControl::OnGetNextItem(int after, UINT flags) const
{
    constexpr UINT kAsked = LVNI_FOCUSED | LVNI_SELECTED | LVNI_DROPHILITED;
    static_assert(kAsked == kStates); // the flags are the states
    return Rows().Next(after, flags & kAsked);
}

BOOL ListControl::OnSetItemState(int row, const LVITEM* pItem)
{
    if (!pItem || (row != -1 && !Rows().Has(row)))
        return FALSE;

    const UINT mask = pItem->stateMask & kStates;
    const UINT state = pItem->state & mask;
    if (row == -1)
        m_selection.ChangeAll(state, mask);
    else
        m_selection.Change(row, state, mask);
    return IsAlive() && (row == -1 || (Rows().State(row) & mask) == state);
}

void ListControl::HasChanged(int row, UINT oldState, UINT newState)
{
    if (row >= 0)
        m_viewport.Redraw(row);
    else
        RedrawAll();
    TellStates(row, oldState, newState);
    m_owner.TellChange(row, oldState, newState);
}

void ListControl::OnSetFocus()
{
    Labels().GotFocus();
    RedrawChosen();
    Notify(NM_SETFOCUS);
}

void ListControl::OnKillFocus()
{
    m_mouse.Cancel();
    Labels().StopWaiting();
    RedrawChosen();
    Notify(NM_KILLFOCUS);
}

void ListControl::RedrawChosen() const
{
    const RowSet rows = m_layout.RowsOf(m_layout.CellsTouching({CPoint(), m_layout.Client()}));
    for (int row = rows.Next(-1); row >= 0; row = rows.Next(row))
        if (Rows().State(row) & (LVIS_SELECTED | LVIS_FOCUSED))
            m_viewport.Redraw(row);
}

BOOL ListControl::OnMoveEditLabel(int row)
{
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
