// What a window is made with and shown as: styles, scroll bars and the record of its creation.
#pragma once

#include "Toolkit/base/Geometry.h"

// Window styles.
inline constexpr DWORD WS_POPUP = 0x80000000;
inline constexpr DWORD WS_CHILD = 0x40000000;
inline constexpr DWORD WS_VISIBLE = 0x10000000;
inline constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
inline constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
inline constexpr DWORD WS_BORDER = 0x00800000; // a line of one pixel
inline constexpr DWORD WS_VSCROLL = 0x00200000;
inline constexpr DWORD WS_HSCROLL = 0x00100000;
inline constexpr DWORD WS_OVERLAPPED = 0x00000000;
inline constexpr DWORD WS_EX_CLIENTEDGE = 0x00000200; // an edge of kClientEdge pixels
inline constexpr int kClientEdge = 1;                 // flat: one line on each side

// ShowWindow.
inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOW = 5;

// Scroll bars.
inline constexpr int SB_HORZ = 0;
inline constexpr int SB_VERT = 1;

struct SCROLLINFO
{
    int nMin, nMax; // both inclusive
    int nPage;      // the bar is hidden while nPage covers the range
    int nPos;
    int nTrackPos; // where the thumb is while it is dragged
};

// What CreateWindow hands to WM_NCCREATE and WM_CREATE. PreCreateWindow may change it before.
struct CREATESTRUCT
{
    void* lpCreateParams;
    HWND hwndParent;
    int cy, cx, y, x; // in the parent's client coordinates
    DWORD style;
    LPCSTR lpszName;
    LPCSTR lpszClass;
    DWORD dwExStyle;
    UINT nID;
};
using LPCREATESTRUCT = CREATESTRUCT*;
