// A message's parameters and answer as what they are: numbers, pointers, points.
#pragma once

#include "Toolkit/base/Types.h"

#include <type_traits>

class CWnd;

namespace toolkit
{

// The CWnd of a handle; made on demand, owned by the window.
TOOLKIT_API CWnd* WndFromHandle(HWND hWnd);

template <class T, class From>
T FromMessage(From value)
{
    if constexpr (std::is_same_v<T, CWnd*>)
        return WndFromHandle(reinterpret_cast<HWND>(value));
    else if constexpr (std::is_pointer_v<T> || std::is_pointer_v<From>)
        return reinterpret_cast<T>(value);
    else
        return T(value);
}

// Becomes what a handler takes.
template <class Raw>
struct MessageParam
{
    Raw value;

    template <class T>
    operator T() const
    {
        return FromMessage<T>(value);
    }
};

// A handler takes both of the message's parameters, the first of them or none, each as the type that it is: a number,
// a pointer, a point. The answer of one that gives none is 0.
template <auto handler, class Object>
LRESULT CallHandler(Object& object, WPARAM wParam, LPARAM lParam)
{
    const MessageParam<WPARAM> first{wParam};
    const MessageParam<LPARAM> second{lParam};
    const auto call = [&] {
        if constexpr (requires { (object.*handler)(first, second); })
            return (object.*handler)(first, second);
        else if constexpr (requires { (object.*handler)(first); })
            return (object.*handler)(first);
        else
            return (object.*handler)();
    };
    if constexpr (std::is_void_v<decltype(call())>)
        return call(), 0;
    else
        return FromMessage<LRESULT>(call());
}

} // namespace toolkit
