// The version of the project's libraries, which are released together.
//
// With the same first two numbers all stays: programs that were built with an earlier third number run with a later
// one, and compile. Until the first number is 1, another second number may change anything, and CHANGELOG.md says what.
//
// What separately built programs agree on besides has its own life, and changes with the first number alone: the order
// of the operations in the host's interfaces, the names and records of services, the numbers of resources, messages and
// notifications, the name of the format under which atoms travel, and the drop receipt (docs/porting.md).
//
// What is exported stands in docs/exports.txt.
#pragma once

#include "Toolkit/base/Types.h"

namespace toolkit
{

// Of the headers; CMakeLists.txt takes it from here.
inline constexpr char kVersion[] = "0.1.0";

// Of the libraries that are loaded.
TOOLKIT_API const char* GetVersion();

} // namespace toolkit
