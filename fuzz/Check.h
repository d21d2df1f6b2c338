// What a fuzz target is: something that must hold whatever bytes it is given.
#pragma once

#include <string>
#include <string_view>

namespace fuzz
{

// Each target defines it. Empty when every promise was kept; else the one that was not.
std::string Check(std::string_view bytes);

} // namespace fuzz
