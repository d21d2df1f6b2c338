// The edit control's own context menu.
#include "Toolkit/controls/edit/EditControl.h"
#include "Toolkit/menu/Menu.h"
#include "Toolkit/window/Wnd.h"

namespace toolkit
{

namespace
{

enum MenuCommand : UINT
{
    kUndo = 1,
    kCut,
    kCopy,
    kPaste,
    kDelete,
    kSelectAll
};

} // namespace

// Opened from the keyboard, it appears below the caret.
void EditControl::OnContextMenu(WPARAM, CPoint at)
{
    if (at == CPoint(-1, -1)) {
        const CRect caret = m_view.CaretRect();
        at = CPoint(std::clamp<int>(caret.left, 0, std::max<int>(m_view.Layout().Client().cx, 0)), caret.bottom);
        ClientToScreen(m_hWnd, &at);
    }
    switch (AskMenu(at)) {
    case kUndo:
        return Ask(WM_UNDO);
    case kCut:
        return Ask(WM_CUT);
    case kCopy:
        return Ask(WM_COPY);
    case kPaste:
        return Ask(WM_PASTE);
    case kDelete:
        return Ask(WM_CLEAR);
    case kSelectAll:
        return SelectAll();
    default:
        return;
    }
}

// Whether there is anything to paste is not asked beforehand: another program may be slow to say.
UINT EditControl::AskMenu(CPoint screen)
{
    const bool selected = !m_text.Selection().IsEmpty();
    const auto when = [](bool enabled) { return enabled ? MF_STRING : MF_STRING | MF_GRAYED; };
    CMenu menu;
    if (!menu.CreatePopupMenu())
        return 0;
    menu.AppendMenu(when(m_history.CanUndo()), kUndo, "&Undo\tCtrl+Z");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(when(selected), kCut, "Cu&t\tCtrl+X");
    menu.AppendMenu(when(selected), kCopy, "&Copy\tCtrl+C");
    menu.AppendMenu(MF_STRING, kPaste, "&Paste\tCtrl+V");
    menu.AppendMenu(when(selected), kDelete, "&Delete");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(when(m_text.Selection().Length() < m_text.Text().size()), kSelectAll, "Select &All\tCtrl+A");
    return static_cast<UINT>(menu.TrackPopupMenu(TPM_RETURNCMD, screen.x, screen.y, CWnd::FromHandle(m_hWnd)));
}

} // namespace toolkit
