// Texts of wide characters, one code point each, as they occur in records of the data transfer.
#pragma once

#include "Toolkit/base/String.h"

#include <string>

using OLECHAR = wchar_t;
using LPOLESTR = OLECHAR*;
using LPCOLESTR = const OLECHAR*;

namespace toolkit
{
// UTF-8 and back. A byte that is no part of valid UTF-8 comes as 0xDC00 plus the byte and goes back as that byte, so
// that every path survives; what is no code point otherwise becomes U+FFFD.
TOOLKIT_API std::string Narrow(std::wstring_view text);
TOOLKIT_API std::wstring Widen(std::string_view text);
} // namespace toolkit
