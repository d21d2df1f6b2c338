// Every public declaration of the library begins here.
#pragma once

#include "Toolkit/base/Types.h"

// Exported, and one type_info for all who load the library.
#define VIEWS_API __attribute__((visibility("default")))
