// The toolkit's elementary types, under their standard names and with their standard widths.
#pragma once

#include <cstddef>
#include <cstdint>

#if defined(TOOLKIT_EXPORTS)
#define TOOLKIT_API __attribute__((visibility("default")))
#else
#define TOOLKIT_API
#endif

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using COLORREF = DWORD; // 0x00bbggrr
using LPSTR = char*;
using LPCSTR = const char*;

using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using WPARAM = UINT_PTR;
using LPARAM = INT_PTR;
using LRESULT = INT_PTR;

inline constexpr BOOL FALSE = 0;
inline constexpr BOOL TRUE = 1;

// Handles name objects that the toolkit keeps. They are opaque and never pointers to follow: a handle
// whose object is gone is refused by every function that takes it. NULL names nothing.
using HANDLE = void*;
using HWND = struct HWND__*;
using HDC = struct HDC__*;
using HBITMAP = struct HBITMAP__*;
using HBRUSH = struct HBRUSH__*;
using HICON = struct HICON__*;
using HIMAGELIST = struct HIMAGELIST__*;

// clang-format off

// The low and the high 16 bits of a 32-bit value.
constexpr WORD LOWORD(UINT_PTR value) { return static_cast<WORD>(value & 0xFFFF); }
constexpr WORD HIWORD(UINT_PTR value) { return static_cast<WORD>((value >> 16) & 0xFFFF); }
constexpr LONG MAKELONG(int low, int high)
{
    return static_cast<LONG>(static_cast<DWORD>(static_cast<WORD>(low)) |
                             static_cast<DWORD>(static_cast<WORD>(high)) << 16);
}
constexpr LPARAM MAKELPARAM(int low, int high)
{
    return MAKELONG(low, high);
}

// The signed coordinates that a mouse message packs into its lParam.
constexpr int GET_X_LPARAM(LPARAM value) { return static_cast<std::int16_t>(LOWORD(static_cast<UINT_PTR>(value))); }
constexpr int GET_Y_LPARAM(LPARAM value) { return static_cast<std::int16_t>(HIWORD(static_cast<UINT_PTR>(value))); }

constexpr COLORREF RGB(int red, int green, int blue)
{
    return static_cast<COLORREF>((red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16);
}
constexpr BYTE GetRValue(COLORREF color) { return static_cast<BYTE>(color); }
constexpr BYTE GetGValue(COLORREF color) { return static_cast<BYTE>(color >> 8); }
constexpr BYTE GetBValue(COLORREF color) { return static_cast<BYTE>(color >> 16); }

// clang-format on
