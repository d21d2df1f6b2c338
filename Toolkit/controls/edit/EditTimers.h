// The edit control's timers: their numbers are such as no derived class takes for its own.
#pragma once

#include "Toolkit/base/Types.h"

namespace toolkit
{

inline constexpr UINT_PTR kEditBlinkTimer = 0xED01;
inline constexpr UINT_PTR kEditScrollTimer = 0xED02;
inline constexpr UINT kEditBlinkPeriod = 530; // milliseconds that the caret is seen, and then not
inline constexpr UINT kEditScrollPeriod = 50;

} // namespace toolkit
