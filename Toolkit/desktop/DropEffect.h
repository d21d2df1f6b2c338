// What a drag does to the data when it is dropped.
#pragma once

#include "Toolkit/base/Types.h"

using DROPEFFECT = DWORD; // a set, where several are allowed

inline constexpr DROPEFFECT DROPEFFECT_NONE = 0;
inline constexpr DROPEFFECT DROPEFFECT_COPY = 1;
inline constexpr DROPEFFECT DROPEFFECT_MOVE = 2;
inline constexpr DROPEFFECT DROPEFFECT_LINK = 4;
inline constexpr DROPEFFECT DROPEFFECT_SCROLL = 0x80000000; // beside another: the target is scrolling

namespace toolkit
{
inline constexpr int kDragScrollEdge = 12; // pixels inside a window's client area, where a resting drag scrolls it
} // namespace toolkit
