// The words of a script's line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace editor
{

// Words are parted by blanks. In double quotes a word may hold blanks, and a backslash lets a quote or a backslash
// stand for itself; "" is an empty word. What follows a # that begins a word is a remark. False, and `trouble` says
// why, for a quote that is not closed.
bool SplitWords(std::string_view line, std::vector<std::string>& words, std::string& trouble);

} // namespace editor
