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
    RegisterListTracker();
    RegisterLabelField();
    return true;
}();

} // namespace

// LVM_SORTITEMS is left to the default, which answers 0: there is nothing to sort.
LRESULT ListControl::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    static const HandlerTable<ListControl> handlers{
        {WM_CREATE, &ListControl::OnCreate},
        {WM_SIZE, &ListControl::OnSize},
        {WM_PAINT, &ListControl::OnPaint},
        {WM_ERASEBKGND, &ListControl::OnEraseBackground},
        {WM_SETFOCUS, &ListControl::OnSetFocus},
        {WM_KILLFOCUS, &ListControl::OnKillFocus},
        {WM_KEYDOWN, &ListControl::OnKeyDown},
        {WM_LBUTTONDOWN, &ListControl::OnLButtonDown},
        {WM_LBUTTONUP, &ListControl::OnLButtonUp},
        {WM_LBUTTONDBLCLK, &ListControl::OnLButtonDblClk},
        {WM_RBUTTONDOWN, &ListControl::OnRButtonDown},
        {WM_RBUTTONDBLCLK, &ListControl::OnRButtonDown},
        {WM_RBUTTONUP, &ListControl::OnRButtonUp},
        {WM_VSCROLL, &ListControl::OnVScroll},
        {WM_MOUSEWHEEL, &ListControl::OnMouseWheel},
        {LVM_GETIMAGELIST, &ListControl::OnGetImageList},
        {LVM_SETIMAGELIST, &ListControl::OnSetImageList},
        {LVM_GETITEMCOUNT, &ListControl::OnGetItemCount},
        {LVM_SETITEMCOUNT, &ListControl::OnSetItemCount},
        {LVM_GETNEXTITEM, &ListControl::OnGetNextItem},
        {LVM_GETSELECTEDCOUNT, &ListControl::OnGetSelectedCount},
        {LVM_GETITEMSTATE, &ListControl::OnGetItemState},
        {LVM_SETITEMSTATE, &ListControl::OnSetItemState},
        {LVM_GETITEMRECT, &ListControl::OnGetItemRect},
        {LVM_HITTEST, &ListControl::OnHitTest},
        {LVM_ENSUREVISIBLE, &ListControl::OnEnsureVisible},
        {LVM_SCROLL, &ListControl::OnScroll},
        {LVM_GETTOPINDEX, &ListControl::OnGetTopIndex},
        {LVM_GETCOUNTPERPAGE, &ListControl::OnGetCountPerPage},
        {LVM_UPDATE, &ListControl::OnUpdate},
        {LVM_ARRANGE, &ListControl::OnArrange},
        {LVM_SETICONSPACING, &ListControl::OnSetIconSpacing},
        {LVM_EDITLABEL, &ListControl::OnEditLabel},
        {LVM_GETEDITCONTROL, &ListControl::OnGetEditControl},
        {LVM_MOVEEDITLABEL, &ListControl::OnMoveEditLabel},
    };
    return handlers.Call(*this, m_hWnd, message, wParam, lParam);
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
    return Relayout() && (m_editedRow < count || FinishLabel(false));
}

LRESULT ListControl::OnSetIconSpacing(WPARAM, LPARAM lParam)
{
    const CSize former = m_layout.Cell();
    const CSize cell(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    m_spacing = cell.cx > 0 && cell.cy > 0 ? std::optional(cell) : std::nullopt;
    Measure();
    RedrawAll();
    static_cast<void>(Relayout());
    return MAKELONG(former.cx, former.cy);
}

LRESULT ListControl::OnArrange(WPARAM, LPARAM)
{
    RedrawAll(); // the rows always lie in the grid
    return Relayout();
}

void ListControl::Measure()
{
    int cx = 0, cy = 0;
    if (!ImageList_GetIconSize(m_hImages, &cx, &cy))
        cx = cy = 0;
    const int line = CurrentTextEngine().LineHeight();
    const int label = ListLayout::kTopPadding + ListLayout::kLabelGap + 2 * line + 1;
    const CSize natural(std::max<int>({kMinCellWidth, kMinCellLines * line, cx + kAroundPicture.cx}),
                        cy + std::max<int>(label, kAroundPicture.cy));
    m_layout.SetIcon({cx, cy});
    m_layout.SetCell(m_spacing.value_or(natural));
}

} // namespace toolkit
