// Inside the library.
#pragma once

#include <string>

namespace views
{

// The names of services and the numbers of resources that no host has registered, in one line; empty when all is there.
std::string WhatIsMissing();

} // namespace views
