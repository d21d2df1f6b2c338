// The list control's messages, notifications and records, with their standard values.
//
// The control is an owner-data one in icon view: it knows how many rows there are and which of them are
// selected and focused; text and pictures it asks for whenever it draws. Row numbers count from 0.
#pragma once

#include "Toolkit/message/Messages.h"

inline constexpr LPCSTR WC_LISTVIEW = "SysListView32";

// Styles.
inline constexpr DWORD LVS_ICON = 0x0000;
inline constexpr DWORD LVS_SHOWSELALWAYS = 0x0008;
inline constexpr DWORD LVS_EDITLABELS = 0x0200;
inline constexpr DWORD LVS_OWNERDATA = 0x1000;

// Messages.
inline constexpr UINT LVM_FIRST = 0x1000;
inline constexpr UINT LVM_GETIMAGELIST = LVM_FIRST + 2;
inline constexpr UINT LVM_SETIMAGELIST = LVM_FIRST + 3; // wParam: which, lParam: HIMAGELIST; the former one
inline constexpr UINT LVM_GETITEMCOUNT = LVM_FIRST + 4;
inline constexpr UINT LVM_GETNEXTITEM = LVM_FIRST + 12; // wParam: the row to start after (-1), lParam: LVNI_*; -1: none
inline constexpr UINT LVM_GETITEMRECT = LVM_FIRST + 14; // lParam: RECT*, whose left holds an LVIR_*; client coordinates
inline constexpr UINT LVM_HITTEST = LVM_FIRST + 18;     // lParam: LVHITTESTINFO*; the row or -1
inline constexpr UINT LVM_ENSUREVISIBLE = LVM_FIRST + 19; // wParam: row, lParam: is a part of it enough?
inline constexpr UINT LVM_SCROLL = LVM_FIRST + 20;        // wParam, lParam: pixels
inline constexpr UINT LVM_ARRANGE = LVM_FIRST + 22;
inline constexpr UINT LVM_EDITLABEL = LVM_FIRST + 23; // wParam: row, -1 cancels; the edit field or NULL
inline constexpr UINT LVM_GETEDITCONTROL = LVM_FIRST + 24;
inline constexpr UINT LVM_GETTOPINDEX = LVM_FIRST + 39;
inline constexpr UINT LVM_GETCOUNTPERPAGE = LVM_FIRST + 40;
inline constexpr UINT LVM_UPDATE = LVM_FIRST + 42;       // wParam: row to redraw
inline constexpr UINT LVM_SETITEMSTATE = LVM_FIRST + 43; // wParam: row, -1 all; lParam: LVITEM* (state, stateMask)
inline constexpr UINT LVM_GETITEMSTATE = LVM_FIRST + 44; // wParam: row, lParam: mask
inline constexpr UINT LVM_SETITEMCOUNT = LVM_FIRST + 47; // wParam: count, lParam: 0
inline constexpr UINT LVM_SORTITEMS = LVM_FIRST + 48;    // an owner-data control has nothing to sort: FALSE
inline constexpr UINT LVM_GETSELECTEDCOUNT = LVM_FIRST + 50;
inline constexpr UINT LVM_SETICONSPACING = LVM_FIRST + 53; // lParam: cell width and height; the former ones
// A mark between rows, for what would be put there. It goes when the number of rows is set.
inline constexpr UINT LVM_SETINSERTMARK = LVM_FIRST + 166; // lParam: LVINSERTMARK*; FALSE without such a row
inline constexpr UINT LVM_GETINSERTMARK = LVM_FIRST + 167; // lParam: LVINSERTMARK*
// wParam: POINT*, client; lParam: LVINSERTMARK*, which becomes the place nearest to it. FALSE where there are no rows.
inline constexpr UINT LVM_INSERTMARKHITTEST = LVM_FIRST + 168;

// The toolkit's own: the row whose label is being edited is now row wParam, or gone (-1), which ends the editing like
// Escape. An owner that moves rows while LVM_GETEDITCONTROL answers says so: the control knows rows by number only.
inline constexpr UINT LVM_MOVEEDITLABEL = LVM_FIRST + 250;
// Ours; wParam: do letters go to the row that begins with them? They do not at first. The owner finds it
// (LVN_ODFINDITEM).
inline constexpr UINT LVM_SETTYPEAHEAD = LVM_FIRST + 251;

inline constexpr int LVSIL_NORMAL = 0;
inline constexpr UINT LVA_DEFAULT = 0;
inline constexpr int LVIR_BOUNDS = 0; // picture and label
inline constexpr int LVIR_ICON = 1;
inline constexpr int LVIR_LABEL = 2;

// A row's states.
inline constexpr UINT LVIS_FOCUSED = 0x0001;
inline constexpr UINT LVIS_SELECTED = 0x0002;
inline constexpr UINT LVIS_DROPHILITED = 0x0008;

inline constexpr UINT LVNI_FOCUSED = 0x0001;
inline constexpr UINT LVNI_SELECTED = 0x0002;
inline constexpr UINT LVNI_DROPHILITED = 0x0008;

inline constexpr UINT LVIF_TEXT = 0x0001;
inline constexpr UINT LVIF_IMAGE = 0x0002;
inline constexpr UINT LVIF_STATE = 0x0008;

inline constexpr UINT LVHT_NOWHERE = 0x0001;
inline constexpr UINT LVHT_ONITEMICON = 0x0002;
inline constexpr UINT LVHT_ONITEMLABEL = 0x0004;

struct LVITEM
{
    UINT mask;
    int iItem;
    int iSubItem;
    UINT state;
    UINT stateMask;
    LPSTR pszText;
    int cchTextMax;
    int iImage;
    LPARAM lParam;
};

struct LVHITTESTINFO
{
    POINT pt; // client
    UINT flags;
    int iItem;
};

inline constexpr DWORD LVIM_AFTER = 0x00000001;

struct LVINSERTMARK
{
    UINT cbSize;
    DWORD dwFlags; // LVIM_AFTER: behind the row; else before it
    int iItem;     // -1: there is no mark
    DWORD dwReserved;
};

// Notifications. An ITEMCHANGING answered with non-zero is refused. Row -1 stands for all rows.
inline constexpr UINT LVN_FIRST = NotifyCode(-100);
inline constexpr UINT LVN_ITEMCHANGING = LVN_FIRST - 0;   // NMLISTVIEW
inline constexpr UINT LVN_ITEMCHANGED = LVN_FIRST - 1;    // NMLISTVIEW
inline constexpr UINT LVN_BEGINLABELEDIT = LVN_FIRST - 5; // NMLVDISPINFO: the row and its label; non-zero refuses
inline constexpr UINT LVN_ENDLABELEDIT = LVN_FIRST - 6;   // NMLVDISPINFO: pszText is NULL when cancelled
inline constexpr UINT LVN_BEGINDRAG = LVN_FIRST - 9;      // NMLISTVIEW: the row pressed and where
inline constexpr UINT LVN_BEGINRDRAG = LVN_FIRST - 11;    // the same with the right button
inline constexpr UINT LVN_ODCACHEHINT = LVN_FIRST - 13;   // NMLVCACHEHINT: rows about to be drawn
inline constexpr UINT LVN_ODFINDITEM = LVN_FIRST - 52;    // NMLVFINDITEM: the row, -1 for none
inline constexpr UINT LVN_GETDISPINFO = LVN_FIRST - 50;   // NMLVDISPINFO: fill in what item.mask asks for

struct NMLISTVIEW
{
    NMHDR hdr;
    int iItem;
    int iSubItem;
    UINT uNewState;
    UINT uOldState;
    UINT uChanged; // LVIF_STATE
    POINT ptAction;
    LPARAM lParam;
};

struct NMLVDISPINFO
{
    NMHDR hdr;
    LVITEM item;
};

struct NMLVCACHEHINT
{
    NMHDR hdr;
    int iFrom, iTo; // both inclusive
};

inline constexpr UINT LVFI_STRING = 0x0002;
inline constexpr UINT LVFI_PARTIAL = 0x0008; // the label begins so
inline constexpr UINT LVFI_WRAP = 0x0020;    // and round from the first row to that before iStart

struct LVFINDINFO
{
    UINT flags;
    LPCSTR psz;
    LPARAM lParam;
    POINT pt;
    UINT vkDirection;
};

struct NMLVFINDITEM
{
    NMHDR hdr;
    int iStart;
    LVFINDINFO lvfi;
};

// NM_CLICK, NM_DBLCLK, NM_RCLICK.
struct NMITEMACTIVATE
{
    NMHDR hdr;
    int iItem; // -1: none
    int iSubItem;
    POINT ptAction;
};
