#include "Toolkit/focus/InputState.h"

#include "Toolkit/message/Messages.h"

#include <bitset>

namespace
{
struct
{
    std::bitset<256> down; // by virtual key
    CPoint cursor;         // screen
} s_state;

constexpr struct
{
    UINT vkey, flag;
} kFlags[] = {{VK_LBUTTON, MK_LBUTTON}, {VK_RBUTTON, MK_RBUTTON}, {VK_MBUTTON, MK_MBUTTON},
              {VK_SHIFT, MK_SHIFT},     {VK_CONTROL, MK_CONTROL}, {VK_MENU, MK_ALT}};
} // namespace

bool toolkit::IsKeyDown(UINT vkey)
{
    return vkey < s_state.down.size() && s_state.down[vkey];
}

bool toolkit::SetKeyDown(UINT vkey, bool bDown)
{
    const bool bWas = IsKeyDown(vkey);
    if (vkey < s_state.down.size())
        s_state.down[vkey] = bDown;
    return bWas;
}

void toolkit::SetModifiersDown(Modifiers modifiers)
{
    s_state.down[VK_SHIFT] = modifiers.shift;
    s_state.down[VK_CONTROL] = modifiers.control;
    s_state.down[VK_MENU] = modifiers.alt;
}

void toolkit::ReleaseAllKeys()
{
    s_state.down.reset();
}

UINT toolkit::MouseKeyFlags()
{
    UINT flags = 0;
    for (const auto& [vkey, flag] : kFlags)
        flags |= s_state.down[vkey] ? flag : 0;
    return flags;
}

void toolkit::SetMouseKeyFlags(UINT flags)
{
    for (const auto& [vkey, flag] : kFlags)
        s_state.down[vkey] = flags & flag;
}

CPoint toolkit::CursorPos()
{
    return s_state.cursor;
}

void toolkit::SetCursorPos(CPoint screen)
{
    s_state.cursor = screen;
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
    *pPoint = s_state.cursor;
    return TRUE;
}
