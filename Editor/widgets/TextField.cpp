#include "Editor/widgets/TextField.h"

#include <algorithm>

namespace editor
{

bool MayEdit(UINT message)
{
    static constexpr UINT kEdits[] = {WM_CHAR, WM_KEYDOWN, WM_PASTE, WM_CUT, WM_CLEAR, WM_UNDO};
    return std::ranges::find(kEdits, message) != std::end(kEdits);
}

void CTextField::SetText(const std::string& text)
{
    m_known = text;
    SetWindowText(text.c_str());
    SetSel(0, -1);
}

LRESULT CTextField::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_KEYDOWN && HandleKey(static_cast<UINT>(wParam)))
        return 0;
    if (message == WM_CHAR && (wParam == '\r' || wParam == '\n' || wParam == VK_ESCAPE || wParam == '\t'))
        return 0;
    const LRESULT nResult = CEdit::WindowProc(message, wParam, lParam);
    if (message == WM_KILLFOCUS && m_events.lost)
        m_events.lost();
    else if (MayEdit(message) && m_events.change && m_hWnd && GetText() != m_known)
        m_events.change(m_known = GetText());
    return nResult;
}

bool CTextField::HandleKey(UINT vkey)
{
    if (m_events.other && m_events.other(vkey))
        return true;
    if (vkey == VK_RETURN && m_events.enter)
        m_events.enter(GetText());
    else if (vkey == VK_ESCAPE && m_events.leave)
        m_events.leave();
    else
        return false;
    return true;
}

} // namespace editor
