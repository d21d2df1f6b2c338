// What of a window can be seen on its top-level window's surface.
#pragma once

#include "Toolkit/handle/WindowRecord.h"

namespace toolkit
{
enum class Children
{
    CutOut,
    AsTheStyleSays
};

Region VisibleClient(const WindowRecord& window, Children children);
Region VisibleWindow(const WindowRecord& window, Children children); // client and border
Region VisibleFrame(const WindowRecord& window);
} // namespace toolkit
