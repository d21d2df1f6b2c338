// Which keys and buttons are down and where the mouse is, as of the input last handled.
#pragma once

#include "Toolkit/message/Input.h"

TOOLKIT_API std::int16_t GetKeyState(UINT vkey); // negative while the key is down
TOOLKIT_API BOOL GetCursorPos(POINT* pPoint);    // screen

namespace toolkit
{
bool IsKeyDown(UINT vkey);
bool SetKeyDown(UINT vkey, bool bDown); // was it down before?
void SetModifiersDown(Modifiers modifiers);
void ReleaseAllKeys();
inline constexpr UINT kMouseButtons = MK_LBUTTON | MK_RBUTTON | MK_MBUTTON;
UINT MouseKeyFlags(); // MK_*
void SetMouseKeyFlags(UINT flags);
CPoint CursorPos(); // screen
void SetCursorPos(CPoint screen);

UINT KeyOfButton(MouseButton button);
} // namespace toolkit
