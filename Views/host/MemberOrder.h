// How the members of a container stand in a view, where its host wants more than the order of names. Image links stand
// in the order of their phase, whatever is wanted.
#pragma once

#include "Toolkit/base/Types.h"

inline constexpr UINT MOF_BYNAME = 0;          // without regard to case; without being asked
inline constexpr UINT MOF_NATURAL = 1;         // numbers in names count by their value: "frame 4" before "frame 14"
inline constexpr UINT MOF_CONTAINERSFIRST = 2; // before all others; a phase counts as none
