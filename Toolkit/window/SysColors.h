// The colours of the desktop's look: drawing needs them below the windows already.
#pragma once

#include "Toolkit/graphics/SysColors.h"
