// Clipboard formats: a number for each kind of data.
#pragma once

#include "Toolkit/base/String.h"

using CLIPFORMAT = WORD;

inline constexpr CLIPFORMAT CF_TEXT = 1; // UTF-8, ended by a zero byte; other programs know it as plain text

// The same number for the same name, whatever its case; 0 for the empty one, and when all 16,384 are taken. A name
// that is a MIME type ("text/uri-list") is what other programs know the data by; under any other name nobody but this
// toolkit's programs does.
TOOLKIT_API CLIPFORMAT RegisterClipboardFormat(LPCSTR pszName);

namespace toolkit
{
// The MIME type by which the desktop names a format; the empty text for a number that is no format.
TOOLKIT_API std::string_view MimeTypeOfFormat(CLIPFORMAT format);
} // namespace toolkit
