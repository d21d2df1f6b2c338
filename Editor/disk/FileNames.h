// Which names files may have, and how copies are called.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace editor
{

inline constexpr std::size_t kLongestName = 255;  // bytes
inline constexpr std::size_t kLongestPath = 4095; // bytes

// Why no file of this system can bear the name, so that it stays in its folder; empty when one can: it is empty, too
// long, "." or "..", or holds a slash or a zero. Any other bytes will do, also those that are no UTF-8.
std::string FileNameTrouble(std::string_view name);
// Why a new name is not given to a file: that, or on other systems it holds a separator or names a device ("con",
// "com1.png").
std::string NameTrouble(std::string_view name);

// The name made into one that NameTrouble finds nothing wrong with and that is not hidden, otherwise as it was.
// Empty when nothing is left of it.
std::string MakeValid(std::string_view name);

// As many of the text's characters as fit into so many bytes.
std::string_view Shortened(std::string_view text, std::size_t most);

// The name itself when it is not taken; else with a number, as in "Walk (2)", "walk (2).png": the first that is not
// taken, counted on from a number that is there already. What stands behind the number (the extension, with its dot)
// is kept; what stands before it is shortened to let the whole fit, never inside a character.
// `nTaken`, which is known from before, tells up to which number all are taken; it grows with what is found out.
std::string NameForCopy(std::string_view name, std::string_view extension,
                        const std::function<bool(std::string_view)>& isTaken, int& nTaken);
// The same, but for the number: one that is not taken, found in few steps, however many are.
std::string AnyNameForCopy(std::string_view name, std::string_view extension,
                           const std::function<bool(std::string_view)>& isTaken);

} // namespace editor
