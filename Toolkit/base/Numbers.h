// Numbers as text and back, under their standard names.
#pragma once

#include "Toolkit/base/Types.h"

inline constexpr DWORD STIF_DEFAULT = 0;

// Reads a decimal number: blanks, a sign or none, digits; what follows is ignored. FALSE, and *pnValue untouched, when
// there is no digit in its place. What does not fit 32 bits loses the upper ones. Only STIF_DEFAULT is known.
TOOLKIT_API BOOL StrToIntExA(LPCSTR pszString, DWORD dwFlags, int* pnValue);

// Writes the number in the radix, 2 to 36, with small letters; only a decimal one has a minus sign, in the others
// negative numbers are those of 32 bits. The buffer, which takes 33 bytes at most, is the answer.
TOOLKIT_API LPSTR _itoa(int nValue, LPSTR pszBuffer, int nRadix);
