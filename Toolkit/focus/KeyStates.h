// Which keys and buttons are down, as of the input last handled. Internal to the window layer.
#pragma once

#include "Toolkit/message/InputQueue.h"

namespace toolkit
{
bool IsKeyDown(UINT vkey);
bool SetKeyDown(UINT vkey, bool bDown); // was it down before?
void SetModifiersDown(Modifiers modifiers);
void ReleaseAllKeys();
UINT MouseKeyFlags(); // MK_*
void SetMouseKeyFlags(UINT flags);

UINT KeyOfButton(MouseButton button);
} // namespace toolkit
