// The list control under the keyboard.
#include "Toolkit/controls/list/ListControl.h"

namespace toolkit
{

namespace
{

bool IsDown(int vkey)
{
    return GetKeyState(vkey) < 0;
}

} // namespace

LRESULT ListControl::OnKeyDown(UINT vkey, LPARAM lParam)
{
    const int row = m_layout.RowByKey(Rows().Focus(), vkey);
    Labels().StopWaiting();
    if (row >= 0)
        MoveFocus(row, vkey == VK_HOME || vkey == VK_END);
    else if (vkey == VK_SPACE)
        PressSpace();
    else if (vkey == VK_RETURN)
        Notify(NM_RETURN);
    else if (vkey == 'A' && IsDown(VK_CONTROL))
        m_selection.ChangeAll(LVIS_SELECTED, LVIS_SELECTED);
    else if (vkey == VK_ESCAPE && m_mouse.IsPressed())
        m_mouse.Cancel();
    else
        return ::DefWindowProc(m_hWnd, WM_KEYDOWN, vkey, lParam);
    return 0;
}

LRESULT ListControl::OnSetTypeAhead(BOOL bOn)
{
    m_bTypeAhead = bOn != FALSE;
    m_typeAhead.Forget();
    return 0;
}

void ListControl::OnChar(char32_t c)
{
    if (!m_bTypeAhead)
        return;
    m_typeAhead.Type(c, [this](const std::string& prefix, bool bBehind) {
        const int from = std::max(Rows().Focus() + (bBehind ? 1 : 0), 0);
        const int row = m_owner.FindLabel(prefix, m_layout.Has(from) ? from : 0);
        if (!m_layout.Has(row))
            return false;
        m_selection.SelectOnly(row);
        if (m_layout.Has(row))
            m_viewport.Show(row);
        return true;
    });
}

void ListControl::MoveFocus(int row, bool allBetween)
{
    const bool control = IsDown(VK_CONTROL);
    if (IsDown(VK_SHIFT))
        m_selection.ExtendTo(row, control, allBetween);
    else if (control)
        m_selection.Focus(row);
    else
        m_selection.SelectOnly(row);
    if (m_layout.Has(row))
        m_viewport.Show(row);
}

void ListControl::PressSpace()
{
    const int row = Rows().Focus();
    if (row < 0)
        return;
    if (IsDown(VK_CONTROL))
        m_selection.Toggle(row);
    else if (IsDown(VK_SHIFT))
        m_selection.ExtendTo(row, false);
    else
        m_selection.SelectOnly(row);
}

} // namespace toolkit
