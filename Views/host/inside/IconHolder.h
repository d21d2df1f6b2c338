// Inside the library.
#pragma once

#include "Toolkit/graphics/Gdi.h"

#include <memory>

namespace views
{

struct DestroyIconHandle
{
    void operator()(HICON hIcon) const { ::DestroyIcon(hIcon); }
};

// Owns an icon's handle.
using IconHolder = std::unique_ptr<HICON__, DestroyIconHandle>;

} // namespace views
