// Text on the clipboard.
#pragma once

#include "Toolkit/base/Types.h"

#include <optional>
#include <string>
#include <string_view>

namespace toolkit
{

void PutClipboardText(std::string_view utf8); // in place of whatever is there
std::optional<std::string> GetClipboardText();

} // namespace toolkit
