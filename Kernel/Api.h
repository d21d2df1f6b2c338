// Every declaration of the kernel that other libraries use.
#pragma once

#include "Toolkit/base/Types.h"

// Exported, and one type_info for all who load the library.
#define KERNEL_API __attribute__((visibility("default")))
