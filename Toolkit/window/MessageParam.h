// A message's parameters and answer as what they are: numbers, pointers, points.
#pragma once

#include "Toolkit/base/Types.h"

#include <type_traits>

namespace toolkit
{

template <class T, class From>
T FromMessage(From value)
{
    if constexpr (std::is_pointer_v<T> || std::is_pointer_v<From>)
        return reinterpret_cast<T>(value);
    else
        return T(value);
}

} // namespace toolkit
