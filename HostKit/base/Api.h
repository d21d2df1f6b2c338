// Every public declaration of the kit begins here.
#pragma once

#include "Toolkit/base/Types.h"

// Exported, and one type_info for all who load the library.
#define HOSTKIT_API __attribute__((visibility("default")))
