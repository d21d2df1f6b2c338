// Which names files may have, and how copies are called.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace editor
{

inline constexpr std::size_t kLongestName = 255;  // bytes
inline constexpr std::size_t kLongestPath = 4095; // bytes

// Why a name cannot be given to a file, so that it stays in its folder here and on other systems; empty when it can:
// it is empty, too long, "." or "..", holds a separator of any system or a zero, or names a device on other systems
// ("con", "com1.png"). Any other bytes will do, also those that are no UTF-8.
std::string NameTrouble(std::string_view name);

// The name made into one that NameTrouble finds nothing wrong with and that is not hidden, otherwise as it was.
// Empty when nothing is left of it.
std::string MakeValid(std::string_view name);

// As many of the text's characters as fit into so many bytes.
std::string_view Shortened(std::string_view text, std::size_t most);

// The name itself when it is not taken; else with a number, as in "Walk (2)", "walk (2).png": the first that is not
// taken, counted on from a number that is there already. What stands behind the number (the extension, with its dot)
// is kept; what stands before it is shortened to let the whole fit, never inside a character.
std::string NameForCopy(std::string_view name, std::string_view extension,
                        const std::function<bool(std::string_view)>& isTaken);

} // namespace editor
