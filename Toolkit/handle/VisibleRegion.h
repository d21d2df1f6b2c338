// What of a window can be seen on its top-level window's surface. Internal to the window layer.
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

// The common part, exact: regions of any number of rectangles.
Region Intersection(const Region& a, const Region& b);
} // namespace toolkit
