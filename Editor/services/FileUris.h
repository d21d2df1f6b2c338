// Files as file managers name them: a list of URIs (RFC 2483), with "file" URIs (RFC 8089).
#pragma once

#include "Toolkit/exchange/ClipboardFormat.h"

#include <string>
#include <string_view>
#include <vector>

namespace editor
{

CLIPFORMAT UriListFormat();

std::string UriListOf(const std::vector<std::string>& paths); // absolute ones
// The paths of the files on this machine that the list names, in its order; what else it names is left out.
std::vector<std::string> PathsIn(std::string_view uriList);

} // namespace editor
