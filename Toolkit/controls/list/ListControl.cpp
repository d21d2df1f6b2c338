#include "Toolkit/controls/list/ListControl.h"

#include "Toolkit/controls/list/ListTracker.h"
#include "Toolkit/window/HandlerTable.h"

namespace toolkit
{

namespace
{

constexpr CSize kAroundPicture{28, 48}; // what a cell has beyond its picture, at least
constexpr int kMinCellWidth = 100;
constexpr int kMinCellLines = 7; // and at least so many line heights wide, for the label's sake

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
        {WM_SIZE, Table::To<&ListControl::OnSize>},
        {WM_PAINT, Table::To<&ListControl::OnPaint>},
        {WM_ERASEBKGND, Table::To<&ListControl::OnEraseBackground>},
        {WM_SETFOCUS, Table::To<&ListControl::OnSetFocus>},
        {WM_KILLFOCUS, Table::To<&ListControl::OnKillFocus>},
        {WM_KEYDOWN, Table::To<&ListControl::OnKeyDown>},
        {WM_LBUTTONDOWN, Table::To<&ListControl::OnLButtonDown>},
        {WM_LBUTTONUP, Table::To<&ListControl::OnLButtonUp>},
        {WM_LBUTTONDBLCLK, Table::To<&ListControl::OnLButtonDblClk>},
        {WM_RBUTTONDOWN, Table::To<&ListControl::OnRButtonDown>},
        {WM_RBUTTONDBLCLK, Table::To<&ListControl::OnRButtonDown>},
        {WM_RBUTTONUP, Table::To<&ListControl::OnRButtonUp>},
        {WM_VSCROLL, Table::To<&ListControl::OnVScroll>},
        {WM_MOUSEWHEEL, Table::To<&ListControl::OnMouseWheel>},
        {LVM_GETIMAGELIST, Table::To<&ListControl::OnGetImageList>},
        {LVM_SETIMAGELIST, Table::To<&ListControl::OnSetImageList>},
        {LVM_GETITEMCOUNT, Table::To<&ListControl::OnGetItemCount>},
        {LVM_SETITEMCOUNT, Table::To<&ListControl::OnSetItemCount>},
        {LVM_GETNEXTITEM, Table::To<&ListControl::OnGetNextItem>},
        {LVM_GETSELECTEDCOUNT, Table::To<&ListControl::OnGetSelectedCount>},
        {LVM_GETITEMSTATE, Table::To<&ListControl::OnGetItemState>},
        {LVM_SETITEMSTATE, Table::To<&ListControl::OnSetItemState>},
        {LVM_GETITEMRECT, Table::To<&ListControl::OnGetItemRect>},
        {LVM_HITTEST, Table::To<&ListControl::OnHitTest>},
        {LVM_ENSUREVISIBLE, Table::To<&ListControl::OnEnsureVisible>},
        {LVM_SCROLL, Table::To<&ListControl::OnScroll>},
        {LVM_GETTOPINDEX, Table::To<&ListControl::OnGetTopIndex>},
        {LVM_GETCOUNTPERPAGE, Table::To<&ListControl::OnGetCountPerPage>},
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

    m_rows.SetCount(count);
    m_layout.SetCount(count);
    m_hinted = {0, 0};
    if (m_band)
        m_band->Truncate(count);
    if (m_press && m_press->row >= count)
        EndTracking();
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

void ListControl::Measure()
{
    int cx = 0, cy = 0;
    if (!ImageList_GetIconSize(Images(), &cx, &cy))
        cx = cy = 0;
    const int line = CurrentTextEngine().LineHeight();
    const int label = ListLayout::kTopPadding + ListLayout::kLabelGap + 2 * line + 1;
    const CSize natural(std::max<int>({kMinCellWidth, kMinCellLines * line, cx + kAroundPicture.cx}),
                        cy + std::max<int>(label, kAroundPicture.cy));
    m_layout.SetIcon({cx, cy});
    m_layout.SetCell(m_spacing.value_or(natural));
}

} // namespace toolkit
