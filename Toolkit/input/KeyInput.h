// Keys on their way to the focus.
#pragma once

#include "Toolkit/message/Input.h"

namespace toolkit
{
void HandleKey(const InputEvent& event);
void HandleCharacter(const InputEvent& event);
void DispatchPosted(MSG msg); // a posted message; key messages go the way of keys
} // namespace toolkit
