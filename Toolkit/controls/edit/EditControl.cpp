#include "Toolkit/controls/edit/EditControl.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/window/HandlerTable.h"

namespace toolkit
{

namespace
{

const bool s_registered = [] {
    for (const LPCSTR pszClass : {WC_EDIT, "EDIT"})
        RegisterWindowClass(pszClass, [](HWND hWnd) { return std::make_unique<EditControl>(hWnd); });
    return true;
}();

EditLayout::Align AlignOf(DWORD style)
{
    if (style & ES_CENTER)
        return EditLayout::Align::Center;
    return style & ES_RIGHT ? EditLayout::Align::Right : EditLayout::Align::Left;
}

} // namespace

LRESULT EditControl::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    static const HandlerTable<EditControl> handlers{
        {WM_CREATE, &EditControl::OnCreate},
        {WM_SIZE, &EditControl::OnSize},
        {WM_STYLECHANGED, &EditControl::OnLooksChanged},
        {WM_PAINT, &EditControl::OnPaint},
        {WM_ERASEBKGND, &EditControl::OnEraseBackground},
        {WM_TIMER, &EditControl::OnTimer},
        {WM_SETFOCUS, &EditControl::OnSetFocus},
        {WM_KILLFOCUS, &EditControl::OnKillFocus},
        {WM_GETDLGCODE, &EditControl::OnGetDlgCode},
        {WM_CONTEXTMENU, &EditControl::OnContextMenu},
        {WM_KEYDOWN, &EditControl::OnKeyDown},
        {WM_SYSKEYDOWN, &EditControl::OnSysKeyDown},
        {WM_CHAR, &EditControl::OnChar},
        {WM_LBUTTONDOWN, &EditControl::OnLButtonDown},
        {WM_LBUTTONDBLCLK, &EditControl::OnLButtonDblClk},
        {WM_LBUTTONUP, &EditControl::OnLButtonUp},
        {WM_RBUTTONDOWN, &EditControl::OnRButtonDown},
        {WM_MOUSEMOVE, &EditControl::OnMouseMove},
        {WM_CAPTURECHANGED, &EditControl::OnCaptureChanged},
        {WM_SETCURSOR, &EditControl::OnSetCursor},
        {WM_SETTEXT, &EditControl::OnSetText},
        {WM_GETTEXT, &EditControl::OnGetText},
        {WM_GETTEXTLENGTH, &EditControl::OnGetTextLength},
        {WM_CUT, &EditControl::OnCut},
        {WM_COPY, &EditControl::OnCopy},
        {WM_PASTE, &EditControl::OnPaste},
        {WM_CLEAR, &EditControl::OnClear},
        {WM_UNDO, &EditControl::OnUndo},
        {EM_GETSEL, &EditControl::OnGetSel},
        {EM_SETSEL, &EditControl::OnSetSel},
        {EM_SCROLLCARET, &EditControl::OnScrollCaret},
        {EM_REPLACESEL, &EditControl::OnReplaceSel},
        {EM_LIMITTEXT, &EditControl::OnLimitText},
        {EM_UNDO, &EditControl::OnUndo},
        {EM_POSFROMCHAR, &EditControl::OnPosFromChar},
    };
    return handlers.Call(*this, m_hWnd, message, wParam, lParam);
}

LRESULT EditControl::OnCreate(WPARAM, LPARAM lParam)
{
    const auto& cs = *reinterpret_cast<const CREATESTRUCT*>(lParam);
    m_text.Set(cs.lpszName ? cs.lpszName : "");
    m_layout.SetAlign(AlignOf(cs.style));
    return 0;
}

LRESULT EditControl::OnSize(WPARAM, LPARAM)
{
    CRect client;
    GetClientRect(m_hWnd, &client);
    m_layout.SetClient(client.Size());
    ShowCaret();
    return 0;
}

LRESULT EditControl::OnLooksChanged(WPARAM, LPARAM)
{
    m_layout.SetAlign(AlignOf(GetWindowStyle(m_hWnd)));
    Show();
    return 0;
}

LRESULT EditControl::OnSetFocus(WPARAM, LPARAM)
{
    Show();
    static_cast<void>(Tell(EN_SETFOCUS));
    return 0;
}

LRESULT EditControl::OnKillFocus(WPARAM, LPARAM)
{
    const HWND hWnd = m_hWnd;
    m_composition = {};
    EndDrag();
    if (!IsWindow(hWnd))
        return 0;
    RestartBlinking();
    RedrawAll();
    CurrentDesktop().TextInputChanged();
    static_cast<void>(Tell(EN_KILLFOCUS));
    return 0;
}

TextInputState EditControl::GetTextInput() const
{
    const TextSpan selection = m_text.Selection();
    const std::size_t anchor = selection.first == m_text.Caret() ? selection.end : selection.first;
    return {m_hWnd, CaretRect(), m_text.Text(), m_text.Caret(), anchor};
}

void EditControl::Compose(std::string_view text, std::size_t caret)
{
    m_composition = {std::string(text), StopAtOrBefore(text, caret)};
    Show();
}

bool EditControl::Tell(UINT code) const
{
    const HWND hWnd = m_hWnd;
    const LONG what = MAKELONG(static_cast<int>(GetDlgCtrlID(hWnd)), static_cast<int>(code));
    SendMessage(GetParent(hWnd), WM_COMMAND, static_cast<WPARAM>(static_cast<DWORD>(what)),
                reinterpret_cast<LPARAM>(hWnd));
    return IsWindow(hWnd);
}

} // namespace toolkit
