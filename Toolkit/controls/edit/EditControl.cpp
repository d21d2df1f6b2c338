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
    using Table = HandlerTable<EditControl>;
    static const Table handlers{
        {WM_CREATE, Table::To<&EditControl::OnCreate>},
        {WM_SIZE, Table::To<&EditControl::OnSize>},
        {WM_STYLECHANGED, Table::To<&EditControl::OnLooksChanged>},
        {WM_PAINT, Table::To<&EditControl::OnPaint>},
        {WM_ERASEBKGND, Table::To<&EditControl::OnEraseBackground>},
        {WM_TIMER, Table::To<&EditControl::OnTimer>},
        {WM_SETFOCUS, Table::To<&EditControl::OnSetFocus>},
        {WM_KILLFOCUS, Table::To<&EditControl::OnKillFocus>},
        {WM_GETDLGCODE, Table::To<&EditControl::OnGetDlgCode>},
        {WM_CONTEXTMENU, Table::To<&EditControl::OnContextMenu>},
        {WM_KEYDOWN, Table::To<&EditControl::OnKeyDown>},
        {WM_SYSKEYDOWN, Table::To<&EditControl::OnSysKeyDown>},
        {WM_CHAR, Table::To<&EditControl::OnChar>},
        {WM_LBUTTONDOWN, Table::To<&EditControl::OnLButtonDown>},
        {WM_LBUTTONDBLCLK, Table::To<&EditControl::OnLButtonDblClk>},
        {WM_LBUTTONUP, Table::To<&EditControl::OnLButtonUp>},
        {WM_RBUTTONDOWN, Table::To<&EditControl::OnRButtonDown>},
        {WM_MOUSEMOVE, Table::To<&EditControl::OnMouseMove>},
        {WM_CAPTURECHANGED, Table::To<&EditControl::OnCaptureChanged>},
        {WM_SETCURSOR, Table::To<&EditControl::OnSetCursor>},
        {WM_SETTEXT, Table::To<&EditControl::OnSetText>},
        {WM_GETTEXT, Table::To<&EditControl::OnGetText>},
        {WM_GETTEXTLENGTH, Table::To<&EditControl::OnGetTextLength>},
        {WM_CUT, Table::To<&EditControl::OnCut>},
        {WM_COPY, Table::To<&EditControl::OnCopy>},
        {WM_PASTE, Table::To<&EditControl::OnPaste>},
        {WM_CLEAR, Table::To<&EditControl::OnClear>},
        {WM_UNDO, Table::To<&EditControl::OnUndo>},
        {EM_GETSEL, Table::To<&EditControl::OnGetSel>},
        {EM_SETSEL, Table::To<&EditControl::OnSetSel>},
        {EM_SCROLLCARET, Table::To<&EditControl::OnScrollCaret>},
        {EM_REPLACESEL, Table::To<&EditControl::OnReplaceSel>},
        {EM_LIMITTEXT, Table::To<&EditControl::OnLimitText>},
        {EM_UNDO, Table::To<&EditControl::OnUndo>},
        {EM_POSFROMCHAR, Table::To<&EditControl::OnPosFromChar>},
    };
    return handlers.Call(*this, message, wParam, lParam);
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
