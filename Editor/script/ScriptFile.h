// Where a script's text comes from.
#pragma once

#include <string>

namespace editor
{

// The file's text; of "-" the standard input's. Empty when it was read, else one line that names the file and the
// reason.
std::string ReadScript(const std::string& path, std::string& text);

} // namespace editor
