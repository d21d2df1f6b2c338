// Text on the clipboard.
#pragma once

#include "Toolkit/base/Types.h"

#include <optional>
#include <string>
#include <string_view>

namespace toolkit
{

TOOLKIT_API void PutClipboardText(std::string_view utf8);  // nothing without memory
TOOLKIT_API std::optional<std::string> GetClipboardText(); // nullopt where there is none

} // namespace toolkit
