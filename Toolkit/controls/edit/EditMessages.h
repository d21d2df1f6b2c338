// The edit control's messages, notifications and styles, with their standard values.
//
// The control is a single line. Its text is UTF-8, and every position in it counts bytes from 0: an EM_GETSEL of the
// text, a CString's length and the limit all speak of the same thing. A position that is not a place for the caret,
// inside a character or before a mark that stands on the character before it, counts as the nearest place to its left.
#pragma once

#include "Toolkit/message/Messages.h"

inline constexpr LPCSTR WC_EDIT = "Edit";

// Styles. The text always scrolls sideways, whether ES_AUTOHSCROLL is set or not.
inline constexpr DWORD ES_LEFT = 0x0000;
inline constexpr DWORD ES_CENTER = 0x0001;
inline constexpr DWORD ES_RIGHT = 0x0002;
inline constexpr DWORD ES_AUTOHSCROLL = 0x0080;
inline constexpr DWORD ES_NOHIDESEL = 0x0100; // the selection is seen without the focus, too

// Messages.
inline constexpr UINT EM_GETSEL = 0x00B0; // wParam, lParam: DWORD* or NULL, start and end; both packed, -1 when too big
inline constexpr UINT EM_SETSEL = 0x00B1; // wParam: anchor, -1: select nothing; lParam: caret, -1: the text's end
inline constexpr UINT EM_SCROLLCARET = 0x00B7; // into view
inline constexpr UINT EM_REPLACESEL = 0x00C2;  // wParam: can it be undone?, lParam: LPCSTR
inline constexpr UINT EM_LIMITTEXT = 0x00C5;   // wParam: bytes, 0: no limit; what is set by WM_SETTEXT may be longer
inline constexpr UINT EM_UNDO = 0x00C7;        // once more: brings back what was undone
inline constexpr UINT EM_POSFROMCHAR = 0x00D6; // wParam: position; packed client point, the top of the caret before it

// Notifications, by WM_COMMAND. EN_UPDATE and EN_CHANGE follow every change of the text, however it came: typed,
// pasted, undone, or set by WM_SETTEXT, even to what it was. The first comes before the control looks different.
inline constexpr UINT EN_SETFOCUS = 0x0100;
inline constexpr UINT EN_KILLFOCUS = 0x0200;
inline constexpr UINT EN_CHANGE = 0x0300;
inline constexpr UINT EN_UPDATE = 0x0400;
inline constexpr UINT EN_MAXTEXT = 0x0501; // what was typed or pasted did not fit the limit: it was cut
