#include "Toolkit/focus/InputState.h"

#include "Toolkit/message/Messages.h"

#include <bitset>

namespace
{
std::bitset<256> s_down;
CPoint s_cursor; // screen

constexpr struct
{
    UINT vkey, flag;
} kFlags[] = {{VK_LBUTTON, MK_LBUTTON}, {VK_RBUTTON, MK_RBUTTON}, {VK_MBUTTON, MK_MBUTTON},
              {VK_SHIFT, MK_SHIFT},     {VK_CONTROL, MK_CONTROL}, {VK_MENU, MK_ALT}};
} // namespace

bool toolkit::IsKeyDown(UINT vkey)
{
    return vkey < s_down.size() && s_down[vkey];
}

bool toolkit::SetKeyDown(UINT vkey, bool bDown)
{
    const bool bWas = IsKeyDown(vkey);
    if (vkey < s_down.size())
        s_down[vkey] = bDown;
    return bWas;
}

void toolkit::SetModifiersDown(Modifiers modifiers)
{
    s_down[VK_SHIFT] = modifiers.shift;
    s_down[VK_CONTROL] = modifiers.control;
    s_down[VK_MENU] = modifiers.alt;
}

void toolkit::ReleaseAllKeys()
{
    s_down.reset();
}

UINT toolkit::MouseKeyFlags()
{
    UINT flags = 0;
    for (const auto& [vkey, flag] : kFlags)
        flags |= s_down[vkey] ? flag : 0;
    return flags;
}

void toolkit::SetMouseKeyFlags(UINT flags)
{
    for (const auto& [vkey, flag] : kFlags)
        s_down[vkey] = flags & flag;
}

CPoint toolkit::CursorPos()
{
    return s_cursor;
}

void toolkit::SetCursorPos(CPoint screen)
{
    s_cursor = screen;
}

UINT toolkit::KeyOfButton(MouseButton button)
{
    switch (button) {
    case MouseButton::Left:
        return VK_LBUTTON;
    case MouseButton::Right:
        return VK_RBUTTON;
    default:
        return VK_MBUTTON;
    }
}

std::int16_t GetKeyState(UINT vkey)
{
    return toolkit::IsKeyDown(vkey) ? std::int16_t{-128} : std::int16_t{0};
}

BOOL GetCursorPos(POINT* pPoint)
{
    *pPoint = s_cursor;
    return TRUE;
}
