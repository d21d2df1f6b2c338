#include "Toolkit/controls/tree/TreeControl.h"

#include "Toolkit/window/HandlerTable.h"

namespace toolkit
{

namespace
{

static_assert(kNormalImages == TVSIL_NORMAL);

const bool s_registered = [] {
    RegisterWindowClass(WC_TREEVIEW, [](HWND hWnd) { return std::make_unique<TreeControl>(hWnd); });
    return true;
}();

} // namespace

LRESULT TreeControl::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!m_unsettled.empty() && NeedsOrder(message, wParam) && !SettleGathered())
        return 0;
    using Table = HandlerTable<TreeControl>;
    static const Table handlers{
        {WM_CREATE, Table::To<&TreeControl::OnCreate>},
        {WM_DESTROY, Table::To<&TreeControl::OnDestroy>},
        {WM_SIZE, Table::To<&TreeControl::OnSize>},
        {WM_STYLECHANGED, Table::To<&TreeControl::OnStyleChanged>},
        {WM_PAINT, Table::To<&TreeControl::OnPaint>},
        {WM_ERASEBKGND, Table::To<&TreeControl::OnEraseBackground>},
        {WM_SETFOCUS, Table::To<&TreeControl::OnSetFocus>},
        {WM_KILLFOCUS, Table::To<&TreeControl::OnKillFocus>},
        {WM_KEYDOWN, Table::To<&TreeControl::OnKeyDown>},
        {WM_KEYUP, Table::To<&TreeControl::OnKeyUp>},
        {WM_CHAR, Table::To<&TreeControl::OnChar>},
        {WM_LBUTTONDOWN, Table::To<&TreeControl::OnLButtonDown>},
        {WM_LBUTTONUP, Table::To<&TreeControl::OnLButtonUp>},
        {WM_LBUTTONDBLCLK, Table::To<&TreeControl::OnLButtonDblClk>},
        {WM_RBUTTONDOWN, Table::To<&TreeControl::OnRButtonDown>},
        {WM_RBUTTONDBLCLK, Table::To<&TreeControl::OnRButtonDown>},
        {WM_RBUTTONUP, Table::To<&TreeControl::OnRButtonUp>},
        {WM_MOUSEMOVE, Table::To<&TreeControl::OnMouseMove>},
        {WM_CAPTURECHANGED, Table::To<&TreeControl::OnCaptureChanged>},
        {WM_VSCROLL, Table::To<&TreeControl::OnVScroll>},
        {WM_HSCROLL, Table::To<&TreeControl::OnHScroll>},
        {WM_MOUSEWHEEL, Table::To<&TreeControl::OnMouseWheel>},
        {TVM_INSERTITEM, Table::To<&TreeControl::OnInsertItem>},
        {TVM_DELETEITEM, Table::To<&TreeControl::OnDeleteItem>},
        {TVM_EXPAND, Table::To<&TreeControl::OnExpand>},
        {TVM_GETITEMRECT, Table::To<&TreeControl::OnGetItemRect>},
        {TVM_GETCOUNT, Table::To<&TreeControl::OnGetCount>},
        {TVM_GETINDENT, Table::To<&TreeControl::OnGetIndent>},
        {TVM_GETIMAGELIST, Table::To<&TreeControl::OnGetImageList>},
        {TVM_SETIMAGELIST, Table::To<&TreeControl::OnSetImageList>},
        {TVM_GETNEXTITEM, Table::To<&TreeControl::OnGetNextItem>},
        {TVM_SELECTITEM, Table::To<&TreeControl::OnSelectItem>},
        {TVM_GETITEM, Table::To<&TreeControl::OnGetItem>},
        {TVM_SETITEM, Table::To<&TreeControl::OnSetItem>},
        {TVM_GETVISIBLECOUNT, Table::To<&TreeControl::OnGetVisibleCount>},
        {TVM_HITTEST, Table::To<&TreeControl::OnHitTest>},
        {TVM_SORTCHILDREN, Table::To<&TreeControl::OnSortChildren>},
        {TVM_SORTCHILDRENCB, Table::To<&TreeControl::OnSortChildrenCB>},
        {TVM_ENSUREVISIBLE, Table::To<&TreeControl::OnEnsureVisible>},
        {TVM_ARRANGECHILDREN, Table::To<&TreeControl::OnArrangeChildren>},
        {TVM_GETITEMHEIGHT, Table::To<&TreeControl::OnGetItemHeight>},
        {TVM_GETITEMSTATE, Table::To<&TreeControl::OnGetItemState>},
        {TVM_EDITLABEL, Table::To<&TreeControl::OnEditLabel>},
        {TVM_GETEDITCONTROL, Table::To<&TreeControl::OnGetEditControl>},
    };
    return handlers.Call(*this, message, wParam, lParam);
}

// The items go with the window: each is announced, but the selection is not asked about any more.
LRESULT TreeControl::OnDestroy(WPARAM, LPARAM)
{
    m_hCaret = nullptr;
    static_cast<void>(EndPress() && DeleteChildren(kRootItem));
    return 0;
}

LRESULT TreeControl::OnStyleChanged(WPARAM, LPARAM)
{
    return MeasuresChanged();
}

void TreeControl::Measure()
{
    int cx = 0, cy = 0;
    if (!ImageList_GetIconSize(Images(), &cx, &cy))
        cx = cy = 0;
    m_layout.SetMeasures(CurrentTextEngine().LineHeight(), {cx, cy});
    m_layout.SetButtonsAtRoot(Is(TVS_LINESATROOT) && Is(TVS_HASLINES | TVS_HASBUTTONS));
    m_bWidthStale = true;
}

} // namespace toolkit
