// Clipboard formats: a number for each kind of data.
#pragma once

#include "Toolkit/base/String.h"

#include <string>
#include <vector>

using CLIPFORMAT = WORD;

// UTF-8, ended by a zero byte. Other programs know it as plain text, and see it without the zero and what follows.
inline constexpr CLIPFORMAT CF_TEXT = 1;

// The same number for the same name, whatever its case; 0 for the empty one, and when all 16,384 are taken. A name
// that is a MIME type ("text/uri-list") is what other programs know the data by; under any other name nobody but this
// toolkit's programs does.
TOOLKIT_API CLIPFORMAT RegisterClipboardFormat(LPCSTR pszName);

namespace toolkit
{
// The MIME types by which the desktop names a format, the best one first; none for a number that is no format.
TOOLKIT_API std::vector<std::string> KindsOfFormat(CLIPFORMAT format);
} // namespace toolkit
