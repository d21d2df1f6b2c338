#include "Editor/widgets/NumberField.h"

#include "Editor/widgets/TextField.h"

#include <utility>

namespace editor
{
namespace
{

// Does the message bring something of the user's into the field?
bool Touches(UINT message, WPARAM wParam)
{
    if (message == WM_CHAR)
        return wParam == '\b' || (wParam >= '0' && wParam <= '9');
    return message == WM_KEYDOWN ? wParam == VK_DELETE : MayEdit(message);
}

} // namespace

LRESULT CNumberField::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_KEYDOWN && HandleKey(static_cast<UINT>(wParam)))
        return 0;
    if (Touches(message, wParam))
        m_bTouched = true;
    const LRESULT nResult = CDigitalEdit::WindowProc(message, wParam, lParam);
    if (message == WM_SETFOCUS)
        SetSel(0, -1); // what is typed replaces what stands there
    if (message == WM_KILLFOCUS)
        m_bTouched ? Enter() : TakeBack();
    return nResult;
}

bool CNumberField::HandleKey(UINT vkey)
{
    if (vkey == VK_RETURN || vkey == VK_TAB)
        Enter();
    else if (vkey == VK_ESCAPE)
        TakeBack();
    else
        return false;
    vkey == VK_TAB ? m_events.next() : m_events.leave();
    return true;
}

void CNumberField::Enter()
{
    int nValue = 0;
    if (std::exchange(m_bTouched, false) && GetValue(nValue))
        m_events.enter(nValue);
    else
        m_events.showAgain();
}

void CNumberField::TakeBack()
{
    m_bTouched = false;
    m_events.showAgain();
}

} // namespace editor
