#include "Toolkit/controls/tree/TreeControl.h"

#include "Toolkit/window/HandlerTable.h"

namespace toolkit
{

namespace
{

static_assert(kNormalImages == TVSIL_NORMAL);

const bool s_registered = [] {
    RegisterWindowClass(WC_TREEVIEW, [](HWND hWnd) { return std::make_unique<TreeControl>(hWnd); });
    RegisterLabelField();
    return true;
}();

} // namespace

LRESULT TreeControl::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!m_unsettled.empty() && NeedsOrder(message, wParam) && !SettleGathered())
        return 0;
    static const HandlerTable<TreeControl> handlers{
        {WM_CREATE, &TreeControl::OnCreate},
        {WM_DESTROY, &TreeControl::OnDestroy},
        {WM_SIZE, &TreeControl::OnSize},
        {WM_STYLECHANGED, &TreeControl::OnStyleChanged},
        {WM_PAINT, &TreeControl::OnPaint},
        {WM_ERASEBKGND, &TreeControl::OnEraseBackground},
        {WM_SETFOCUS, &TreeControl::OnSetFocus},
        {WM_KILLFOCUS, &TreeControl::OnKillFocus},
        {WM_KEYDOWN, &TreeControl::OnKeyDown},
        {WM_KEYUP, &TreeControl::OnKeyUp},
        {WM_CHAR, &TreeControl::OnChar},
        {WM_LBUTTONDOWN, &TreeControl::OnLButtonDown},
        {WM_LBUTTONUP, &TreeControl::OnLButtonUp},
        {WM_LBUTTONDBLCLK, &TreeControl::OnLButtonDblClk},
        {WM_RBUTTONDOWN, &TreeControl::OnRButtonDown},
        {WM_RBUTTONDBLCLK, &TreeControl::OnRButtonDown},
        {WM_RBUTTONUP, &TreeControl::OnRButtonUp},
        {WM_MOUSEMOVE, &TreeControl::OnMouseMove},
        {WM_CAPTURECHANGED, &TreeControl::OnCaptureChanged},
        {WM_VSCROLL, &TreeControl::OnVScroll},
        {WM_HSCROLL, &TreeControl::OnHScroll},
        {WM_MOUSEWHEEL, &TreeControl::OnMouseWheel},
        {TVM_INSERTITEM, &TreeControl::OnInsertItem},
        {TVM_DELETEITEM, &TreeControl::OnDeleteItem},
        {TVM_EXPAND, &TreeControl::OnExpand},
        {TVM_GETITEMRECT, &TreeControl::OnGetItemRect},
        {TVM_GETCOUNT, &TreeControl::OnGetCount},
        {TVM_GETINDENT, &TreeControl::OnGetIndent},
        {TVM_GETIMAGELIST, &TreeControl::OnGetImageList},
        {TVM_SETIMAGELIST, &TreeControl::OnSetImageList},
        {TVM_GETNEXTITEM, &TreeControl::OnGetNextItem},
        {TVM_SELECTITEM, &TreeControl::OnSelectItem},
        {TVM_GETITEM, &TreeControl::OnGetItem},
        {TVM_SETITEM, &TreeControl::OnSetItem},
        {TVM_GETVISIBLECOUNT, &TreeControl::OnGetVisibleCount},
        {TVM_HITTEST, &TreeControl::OnHitTest},
        {TVM_SORTCHILDREN, &TreeControl::OnSortChildren},
        {TVM_SORTCHILDRENCB, &TreeControl::OnSortChildrenCB},
        {TVM_ENSUREVISIBLE, &TreeControl::OnEnsureVisible},
        {TVM_ARRANGECHILDREN, &TreeControl::OnArrangeChildren},
        {TVM_GETITEMHEIGHT, &TreeControl::OnGetItemHeight},
        {TVM_GETITEMSTATE, &TreeControl::OnGetItemState},
        {TVM_EDITLABEL, &TreeControl::OnEditLabel},
        {TVM_GETEDITCONTROL, &TreeControl::OnGetEditControl},
    };
    return handlers.Call(*this, m_hWnd, message, wParam, lParam);
}

// The items go with the window: each is announced, but the selection is not asked about any more.
LRESULT TreeControl::OnDestroy(WPARAM, LPARAM)
{
    m_hCaret = nullptr;
    static_cast<void>(CancelPress() && DeleteChildren(kRootItem));
    return 0;
}

LRESULT TreeControl::OnStyleChanged(WPARAM, LPARAM)
{
    Measure();
    RedrawAll();
    static_cast<void>(Relayout());
    return 0;
}

void TreeControl::Measure()
{
    int cx = 0, cy = 0;
    if (!ImageList_GetIconSize(m_hImages, &cx, &cy))
        cx = cy = 0;
    m_layout.SetMeasures(CurrentTextEngine().LineHeight(), {cx, cy});
    m_layout.SetButtonsAtRoot(Is(TVS_LINESATROOT) && Is(TVS_HASLINES | TVS_HASBUTTONS));
    m_bWidthStale = true;
}

} // namespace toolkit
