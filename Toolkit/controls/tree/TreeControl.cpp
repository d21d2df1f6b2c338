#include "Toolkit/controls/tree/TreeControl.h"

#include "Toolkit/window/HandlerTable.h"

namespace toolkit
{

namespace
{

constexpr int kLeastFieldWidth = 40;

static_assert(kNormalImages == TVSIL_NORMAL);

const bool s_registered = [] {
    RegisterWindowClass(WC_TREEVIEW, [](HWND hWnd) { return std::make_unique<TreeControl>(hWnd); });
    return true;
}();

} // namespace

LRESULT TreeControl::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (TreeOrder::IsNeededBy(message, wParam))
        m_order.Settle();
    using Table = HandlerTable<TreeControl>;
    static const Table handlers{
        {WM_CREATE, Table::To<&TreeControl::OnCreate>},
        {WM_DESTROY, Table::To<&TreeControl::OnDestroy>},
        {WM_SIZE, Table::To<&TreeControl::OnSize>},
        {WM_STYLECHANGED, Table::To<&TreeControl::MeasuresChanged>},
        {WM_FONTCHANGE, Table::To<&TreeControl::OnFontChange>},
        {WM_PAINT, Table::To<&TreeControl::m_painter, &TreePainter::OnPaint>},
        {WM_ERASEBKGND, Table::To<&TreeControl::OnEraseBackground>},
        {WM_SETFOCUS, Table::To<&TreeControl::OnSetFocus>},
        {WM_KILLFOCUS, Table::To<&TreeControl::OnKillFocus>},
        {WM_KEYDOWN, Table::To<&TreeControl::m_keys, &TreeKeys::OnKeyDown>},
        {WM_KEYUP, Table::To<&TreeControl::m_keys, &TreeKeys::OnKeyUp>},
        {WM_CHAR, Table::To<&TreeControl::m_keys, &TreeKeys::OnChar>},
        {WM_LBUTTONDOWN, Table::To<&TreeControl::m_mouse, &TreeMouse::OnLButtonDown>},
        {WM_LBUTTONUP, Table::To<&TreeControl::m_mouse, &TreeMouse::OnLButtonUp>},
        {WM_LBUTTONDBLCLK, Table::To<&TreeControl::m_mouse, &TreeMouse::OnLButtonDblClk>},
        {WM_RBUTTONDOWN, Table::To<&TreeControl::m_mouse, &TreeMouse::OnRButtonDown>},
        {WM_RBUTTONDBLCLK, Table::To<&TreeControl::m_mouse, &TreeMouse::OnRButtonDown>},
        {WM_RBUTTONUP, Table::To<&TreeControl::m_mouse, &TreeMouse::OnRButtonUp>},
        {WM_MOUSEMOVE, Table::To<&TreeControl::m_mouse, &TreeMouse::OnMouseMove>},
        {WM_CAPTURECHANGED, Table::To<&TreeControl::m_mouse, &TreeMouse::OnCaptureChanged>},
        {WM_VSCROLL, Table::To<&TreeControl::m_viewport, &TreeViewport::OnVScroll>},
        {WM_HSCROLL, Table::To<&TreeControl::m_viewport, &TreeViewport::OnHScroll>},
        {WM_MOUSEWHEEL, Table::To<&TreeControl::m_viewport, &TreeViewport::OnMouseWheel>},
        {TVM_INSERTITEM, Table::To<&TreeControl::m_content, &TreeContent::OnInsertItem>},
        {TVM_DELETEITEM, Table::To<&TreeControl::m_content, &TreeContent::OnDeleteItem>},
        {TVM_EXPAND, Table::To<&TreeControl::m_selection, &TreeSelection::OnExpand>},
        {TVM_GETITEMRECT, Table::To<&TreeControl::m_viewport, &TreeViewport::OnGetItemRect>},
        {TVM_GETCOUNT, Table::To<&TreeControl::m_items, &TreeItems::Count>},
        {TVM_GETIMAGELIST, Table::To<&TreeControl::OnGetImageList>},
        {TVM_SETIMAGELIST, Table::To<&TreeControl::OnSetImageList>},
        {TVM_GETNEXTITEM, Table::To<&TreeControl::OnGetNextItem>},
        {TVM_SELECTITEM, Table::To<&TreeControl::m_selection, &TreeSelection::OnSelectItem>},
        {TVM_GETITEM, Table::To<&TreeControl::m_content, &TreeContent::OnGetItem>},
        {TVM_SETITEM, Table::To<&TreeControl::m_content, &TreeContent::OnSetItem>},
        {TVM_GETVISIBLECOUNT, Table::To<&TreeControl::m_viewport, &TreeViewport::OnGetVisibleCount>},
        {TVM_HITTEST, Table::To<&TreeControl::m_viewport, &TreeViewport::OnHitTest>},
        {TVM_SORTCHILDREN, Table::To<&TreeControl::m_order, &TreeOrder::OnSortChildren>},
        {TVM_SORTCHILDRENCB, Table::To<&TreeControl::m_order, &TreeOrder::OnSortChildrenCB>},
        {TVM_ENSUREVISIBLE, Table::To<&TreeControl::m_selection, &TreeSelection::OnEnsureVisible>},
        {TVM_SETORDERKEY, Table::To<&TreeControl::m_order, &TreeOrder::OnSetOrderKey>},
        {TVM_ARRANGECHILDREN, Table::To<&TreeControl::m_order, &TreeOrder::OnArrangeChildren>},
        {TVM_GETITEMHEIGHT, Table::To<&TreeControl::m_layout, &TreeLayout::RowHeight>},
        {TVM_GETITEMSTATE, Table::To<&TreeControl::m_content, &TreeContent::OnGetItemState>},
        {TVM_EDITLABEL, Table::To<&TreeControl::OnEditLabel>},
        {TVM_GETEDITCONTROL, Table::To<&TreeControl::OnGetEditControl>},
    };
    return handlers.Call(*this, message, wParam, lParam);
}

// The items go with the window: each is announced, but the selection is not asked about any more.
void TreeControl::OnDestroy()
{
    m_selection.Forget();
    m_mouse.Cancel();
    m_content.DeleteChildren(kRootItem);
}

void TreeControl::OnSize()
{
    if (m_viewport.OnSize()) {
        m_order.Settle();
        m_viewport.ScrollIntoView(m_selection.Caret()); // nobody could see it before
    }
}

void TreeControl::OnSetFocus()
{
    Labels().GotFocus();
    m_viewport.Redraw(m_selection.Caret());
    // A change of the selection that moves the focus on its way finds the item itself.
    if (!m_selection.Caret() && !m_selection.IsChanging())
        m_selection.Select(m_items.HandleOf(m_items.AtRow(m_layout.TopRow())), TVC_UNKNOWN);
    Notify(NM_SETFOCUS);
}

void TreeControl::OnKillFocus()
{
    m_keys.ForgetTyped();
    Labels().StopWaiting();
    m_mouse.Cancel();
    m_viewport.Redraw(m_selection.Caret());
    Notify(NM_KILLFOCUS);
}

HTREEITEM TreeControl::OnGetNextItem(UINT code, HTREEITEM hItem) const
{
    return code == TVGN_CARET ? m_selection.Caret() : m_items.HandleOf(Neighbour(code, hItem));
}

ItemIndex TreeControl::Neighbour(UINT code, HTREEITEM hItem) const
{
    const ItemIndex item = m_items.Find(hItem);
    switch (code) {
    case TVGN_ROOT:
        return m_items.FirstChild(kRootItem);
    case TVGN_CHILD:
        return m_items.FirstChild(m_items.FindParent(hItem));
    case TVGN_NEXT:
        return m_items.Next(item);
    case TVGN_PREVIOUS:
        return m_items.Previous(item);
    case TVGN_PARENT:
        return m_items.Parent(item);
    case TVGN_FIRSTVISIBLE:
        return m_items.AtRow(m_layout.TopRow());
    case TVGN_NEXTVISIBLE:
        return m_items.IsShown(item) ? m_items.AtRow(m_items.RowOf(item) + 1) : kNoItem;
    default:
        return kNoItem;
    }
}

bool TreeControl::HasItem(LPARAM item) const
{
    const ItemIndex index = m_items.Find(ToHandle(item));
    return index != kNoItem && !m_items.Goes(index);
}

// Its text lies on the label's; it grows to the right, inside the client area as far as that goes.
CRect TreeControl::FieldBox(LPARAM item, CSize wanted) const
{
    const ItemIndex index = m_items.Find(ToHandle(item));
    const int row = m_items.RowOf(index);
    if (row < 0)
        return {CPoint(0, -2 * wanted.cy), wanted};
    const CRect label = m_layout.LabelBox(row, m_items.Level(index), 0);
    const int left = std::max<int>(label.left + TreeLayout::kLabelPadding - LabelEditing::kFieldEdge, 0);
    const int room = std::max<int>(m_layout.Client().cx - left, kLeastFieldWidth);
    const int height = std::max<int>(wanted.cy, label.Height());
    return {CPoint(left, label.top + (label.Height() - height) / 2),
            CSize(std::clamp<int>(wanted.cx, kLeastFieldWidth, room), height)};
}

void TreeControl::TellLabel(LPARAM item, std::string& text, bool taken)
{
    if (m_owner.TellLabel(ToHandle(item), text, taken))
        m_content.TakeLabel(ToHandle(item), text);
}

} // namespace toolkit
