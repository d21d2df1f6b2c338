// Messages, keys and the records that travel with them, with their standard values.
#pragma once

#include "Toolkit/handle/WindowTypes.h"

inline constexpr UINT WM_CREATE = 0x0001;
inline constexpr UINT WM_DESTROY = 0x0002;
inline constexpr UINT WM_MOVE = 0x0003;
inline constexpr UINT WM_SIZE = 0x0005;
inline constexpr UINT WM_ACTIVATE = 0x0006; // to a top-level window; wParam: WA_*
inline constexpr WPARAM WA_INACTIVE = 0;
inline constexpr WPARAM WA_ACTIVE = 1;
inline constexpr UINT WM_SETFOCUS = 0x0007;
inline constexpr UINT WM_KILLFOCUS = 0x0008;
inline constexpr UINT WM_SETTEXT = 0x000C;
inline constexpr UINT WM_GETTEXT = 0x000D;
inline constexpr UINT WM_GETTEXTLENGTH = 0x000E;
inline constexpr UINT WM_PAINT = 0x000F;
inline constexpr UINT WM_CLOSE = 0x0010;
inline constexpr UINT WM_ERASEBKGND = 0x0014; // wParam: the HDC
// The desktop has other colours, or another scale. To top-level windows and on to those inside them; all of it is
// painted anew.
inline constexpr UINT WM_SYSCOLORCHANGE = 0x0015;
inline constexpr UINT WM_FONTCHANGE = 0x001D; // likewise, where texts are measured otherwise than before
inline constexpr UINT WM_SHOWWINDOW = 0x0018;
// The mouse moves over the client area of wParam, the window itself, which may show a cursor: it is an arrow whenever
// the mouse comes to another window.
inline constexpr UINT WM_SETCURSOR = 0x0020;
inline constexpr UINT WM_NOTIFY = 0x004E;
inline constexpr UINT WM_CONTEXTMENU = 0x007B; // wParam: the window, lParam: screen point, -1, -1 from the keyboard
inline constexpr UINT WM_STYLECHANGED = 0x007D;
inline constexpr UINT WM_NCCREATE = 0x0081;
inline constexpr UINT WM_NCDESTROY = 0x0082;
inline constexpr UINT WM_NCPAINT = 0x0085; // wParam: the HDC of the whole window, border and scroll bars included
inline constexpr UINT WM_GETDLGCODE = 0x0087;
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_KEYUP = 0x0101;
inline constexpr UINT WM_CHAR = 0x0102; // wParam: a code point
inline constexpr UINT WM_SYSKEYDOWN = 0x0104;
inline constexpr UINT WM_SYSKEYUP = 0x0105;
inline constexpr UINT WM_COMMAND = 0x0111;
inline constexpr UINT WM_TIMER = 0x0113;
inline constexpr UINT WM_HSCROLL = 0x0114;
inline constexpr UINT WM_VSCROLL = 0x0115;
inline constexpr UINT WM_MOUSEMOVE = 0x0200;
inline constexpr UINT WM_LBUTTONDOWN = 0x0201;
inline constexpr UINT WM_LBUTTONUP = 0x0202;
inline constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
inline constexpr UINT WM_RBUTTONDOWN = 0x0204;
inline constexpr UINT WM_RBUTTONUP = 0x0205;
inline constexpr UINT WM_RBUTTONDBLCLK = 0x0206;
inline constexpr UINT WM_MBUTTONDOWN = 0x0207;
inline constexpr UINT WM_MBUTTONUP = 0x0208;
inline constexpr UINT WM_MBUTTONDBLCLK = 0x0209;
inline constexpr UINT WM_MOUSEWHEEL = 0x020A; // high word of wParam: the turn, WHEEL_DELTA a notch, up is positive
// To the owner of a menu that is shown, of what goes beyond it; TRUE ends the menu. wParam: VK_LEFT or VK_RIGHT, or
// VK_LBUTTON for a press beside the menu, or 0 for a movement there, with the screen point in lParam.
inline constexpr UINT WM_NEXTMENU = 0x0213;
inline constexpr UINT WM_CAPTURECHANGED = 0x0215;
inline constexpr UINT WM_MOUSELEAVE = 0x02A3; // the mouse left the window it was over
inline constexpr UINT WM_CUT = 0x0300;
inline constexpr UINT WM_COPY = 0x0301;
inline constexpr UINT WM_PASTE = 0x0302;
inline constexpr UINT WM_CLEAR = 0x0303;
inline constexpr UINT WM_UNDO = 0x0304;
inline constexpr UINT WM_USER = 0x0400;
inline constexpr UINT WM_APP = 0x8000;

// What a reflected message is when it comes back to the control that caused it.
inline constexpr UINT WM_REFLECT_BASE = 0xBC00;

inline constexpr int WHEEL_DELTA = 120;

// The states of keys and buttons in the wParam of mouse messages.
inline constexpr UINT MK_LBUTTON = 0x0001;
inline constexpr UINT MK_RBUTTON = 0x0002;
inline constexpr UINT MK_SHIFT = 0x0004;
inline constexpr UINT MK_CONTROL = 0x0008;
inline constexpr UINT MK_MBUTTON = 0x0010;
inline constexpr UINT MK_ALT = 0x0020;

// What a window answers to WM_GETDLGCODE: the keys it wants for itself. A window that takes text answers
// DLGC_HASSETSEL; a host asks it before it makes a command of a key.
inline constexpr UINT DLGC_WANTARROWS = 0x0001;
inline constexpr UINT DLGC_WANTALLKEYS = 0x0004;
inline constexpr UINT DLGC_HASSETSEL = 0x0008;
inline constexpr UINT DLGC_WANTCHARS = 0x0080;

// Virtual keys. Letters and digits are their upper-case ASCII codes.
inline constexpr UINT VK_LBUTTON = 0x01;
inline constexpr UINT VK_RBUTTON = 0x02;
inline constexpr UINT VK_MBUTTON = 0x04;
inline constexpr UINT VK_BACK = 0x08;
inline constexpr UINT VK_TAB = 0x09;
inline constexpr UINT VK_RETURN = 0x0D;
inline constexpr UINT VK_SHIFT = 0x10;
inline constexpr UINT VK_CONTROL = 0x11;
inline constexpr UINT VK_MENU = 0x12;    // Alt
inline constexpr UINT VK_CAPITAL = 0x14; // CapsLock
inline constexpr UINT VK_ESCAPE = 0x1B;
inline constexpr UINT VK_SPACE = 0x20;
inline constexpr UINT VK_PRIOR = 0x21;
inline constexpr UINT VK_NEXT = 0x22;
inline constexpr UINT VK_END = 0x23;
inline constexpr UINT VK_HOME = 0x24;
inline constexpr UINT VK_LEFT = 0x25;
inline constexpr UINT VK_UP = 0x26;
inline constexpr UINT VK_RIGHT = 0x27;
inline constexpr UINT VK_DOWN = 0x28;
inline constexpr UINT VK_INSERT = 0x2D;
inline constexpr UINT VK_DELETE = 0x2E;
inline constexpr UINT VK_APPS = 0x5D; // the menu key
inline constexpr UINT VK_MULTIPLY = 0x6A;
inline constexpr UINT VK_ADD = 0x6B;
inline constexpr UINT VK_SUBTRACT = 0x6D;
inline constexpr UINT VK_F1 = 0x70;
inline constexpr UINT VK_F2 = 0x71;
inline constexpr UINT VK_F4 = 0x73;
inline constexpr UINT VK_F5 = 0x74;
inline constexpr UINT VK_F6 = 0x75;
inline constexpr UINT VK_F7 = 0x76;
inline constexpr UINT VK_F8 = 0x77;
inline constexpr UINT VK_F10 = 0x79;
inline constexpr UINT VK_OEM_PLUS = 0xBB;
inline constexpr UINT VK_OEM_COMMA = 0xBC;
inline constexpr UINT VK_OEM_MINUS = 0xBD;
inline constexpr UINT VK_OEM_PERIOD = 0xBE;
inline constexpr UINT VK_UNKNOWN = 0xFF; // any key that has no code here: its press is told like every other

// What WM_VSCROLL and WM_HSCROLL carry in the low word of wParam.
inline constexpr UINT SB_LINEUP = 0;
inline constexpr UINT SB_LINEDOWN = 1;
inline constexpr UINT SB_PAGEUP = 2;
inline constexpr UINT SB_PAGEDOWN = 3;
inline constexpr UINT SB_THUMBPOSITION = 4;
inline constexpr UINT SB_THUMBTRACK = 5; // ask GetScrollInfo for the 32-bit track position
inline constexpr UINT SB_ENDSCROLL = 8;

// The head of every notification; WM_NOTIFY carries its address in lParam and idFrom in wParam.
struct NMHDR
{
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};

// Notifications common to all controls, and how codes are made.
constexpr UINT NotifyCode(int n)
{
    return static_cast<UINT>(n);
}
inline constexpr UINT NM_CLICK = NotifyCode(-2);
inline constexpr UINT NM_DBLCLK = NotifyCode(-3);
inline constexpr UINT NM_RETURN = NotifyCode(-4);
inline constexpr UINT NM_RCLICK = NotifyCode(-5);
inline constexpr UINT NM_SETFOCUS = NotifyCode(-7);
inline constexpr UINT NM_KILLFOCUS = NotifyCode(-8);

struct MSG
{
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};
