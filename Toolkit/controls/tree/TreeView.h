// The tree control's messages, notifications and records, with their standard values.
//
// An item is named by its handle. The handle of an item that was deleted, and any other value that names no item of
// the control, is refused by every message: FALSE, NULL, 0 or -1, and nothing happens.
#pragma once

#include "Toolkit/message/Messages.h"

#include <string>

inline constexpr LPCSTR WC_TREEVIEW = "SysTreeView32";

using HTREEITEM = struct HTREEITEM__*;

// Styles.
inline constexpr DWORD TVS_HASBUTTONS = 0x0001;
inline constexpr DWORD TVS_HASLINES = 0x0002;
inline constexpr DWORD TVS_LINESATROOT = 0x0004; // lines and buttons for the top-level items, too
inline constexpr DWORD TVS_EDITLABELS = 0x0008;
inline constexpr DWORD TVS_SHOWSELALWAYS = 0x0020;

// Messages.
inline constexpr UINT TV_FIRST = 0x1100;
inline constexpr UINT TVM_INSERTITEM = TV_FIRST + 0;  // lParam: TVINSERTSTRUCT*; the item or NULL
inline constexpr UINT TVM_DELETEITEM = TV_FIRST + 1;  // lParam: item with its subtree; TVI_ROOT: all
inline constexpr UINT TVM_EXPAND = TV_FIRST + 2;      // wParam: TVE_*, lParam: item; TRUE when it changed
inline constexpr UINT TVM_GETITEMRECT = TV_FIRST + 4; // wParam: label only?, lParam: RECT* that begins with the item
inline constexpr UINT TVM_GETCOUNT = TV_FIRST + 5;
inline constexpr UINT TVM_GETIMAGELIST = TV_FIRST + 8;
inline constexpr UINT TVM_SETIMAGELIST = TV_FIRST + 9; // wParam: TVSIL_NORMAL, lParam: HIMAGELIST; the former one
inline constexpr UINT TVM_GETNEXTITEM = TV_FIRST + 10; // wParam: TVGN_*, lParam: item; the item or NULL
inline constexpr UINT TVM_SELECTITEM = TV_FIRST + 11;  // wParam: TVGN_*, lParam: item or NULL; FALSE: refused
inline constexpr UINT TVM_GETITEM = TV_FIRST + 12;     // lParam: TVITEM*: hItem, and what its mask asks for
inline constexpr UINT TVM_SETITEM = TV_FIRST + 13;     // lParam: const TVITEM*
inline constexpr UINT TVM_EDITLABEL = TV_FIRST + 14;   // lParam: item; the edit field or NULL
inline constexpr UINT TVM_GETEDITCONTROL = TV_FIRST + 15;
inline constexpr UINT TVM_GETVISIBLECOUNT = TV_FIRST + 16; // rows that fit the client area whole
inline constexpr UINT TVM_HITTEST = TV_FIRST + 17;         // lParam: TVHITTESTINFO*; the item or NULL
inline constexpr UINT TVM_SORTCHILDREN = TV_FIRST + 19;    // lParam: parent; by label, ignoring case
inline constexpr UINT TVM_ENSUREVISIBLE = TV_FIRST + 20;   // lParam: item; TRUE when it only had to scroll
inline constexpr UINT TVM_SORTCHILDRENCB = TV_FIRST + 21;  // lParam: TVSORTCB*; equals keep their order
inline constexpr UINT TVM_GETITEMHEIGHT = TV_FIRST + 28;
inline constexpr UINT TVM_GETITEMSTATE = TV_FIRST + 39; // wParam: item, lParam: mask; the states
// Ours; lParam: TVARRANGECHILDREN*. What TVM_SORTCHILDRENCB with a comparison by place comes to, at the cost of one
// look at each child. FALSE, and nothing changes, when it does not name each child of the item once. Who knows that
// their labels are in order then, too, says so: the next sorted insertion need not read them all to find out.
inline constexpr UINT TVM_ARRANGECHILDREN = TV_FIRST + 0x80;

// Ours; lParam: a PFNTVORDERKEY, NULL at first. By what siblings stand that are put in the order of their labels: the
// bytes of the key that it makes of an item's lParam and label, instead of the labels without regard to case. Those
// that are there keep their places until they are sorted. It must not change the tree.
inline constexpr UINT TVM_SETORDERKEY = TV_FIRST + 0x81;

inline constexpr UINT TVSIL_NORMAL = 0;

// What TVM_EXPAND does.
inline constexpr UINT TVE_COLLAPSE = 0x0001;
inline constexpr UINT TVE_EXPAND = 0x0002;
inline constexpr UINT TVE_TOGGLE = 0x0003;

// What TVM_GETNEXTITEM gives. Shown is an item all of whose ancestors are expanded, scrolled into sight or not.
inline constexpr UINT TVGN_ROOT = 0x0000;         // the first top-level item
inline constexpr UINT TVGN_NEXT = 0x0001;         // the next sibling
inline constexpr UINT TVGN_PREVIOUS = 0x0002;     // the previous sibling
inline constexpr UINT TVGN_PARENT = 0x0003;       // NULL for a top-level item
inline constexpr UINT TVGN_CHILD = 0x0004;        // the first child; of TVI_ROOT: the first top-level item
inline constexpr UINT TVGN_FIRSTVISIBLE = 0x0005; // the item in the client area's first row
inline constexpr UINT TVGN_NEXTVISIBLE = 0x0006;  // the next shown item; the item itself must be shown
inline constexpr UINT TVGN_CARET = 0x0009;        // the selected item

// Which fields of a TVITEM count.
inline constexpr UINT TVIF_TEXT = 0x0001;
inline constexpr UINT TVIF_IMAGE = 0x0002;
inline constexpr UINT TVIF_PARAM = 0x0004;
inline constexpr UINT TVIF_STATE = 0x0008;
inline constexpr UINT TVIF_HANDLE = 0x0010;
inline constexpr UINT TVIF_SELECTEDIMAGE = 0x0020;
inline constexpr UINT TVIF_CHILDREN = 0x0040;
inline constexpr UINT TVIF_DI_SETITEM = 0x1000; // in the answer to TVN_GETDISPINFO: keep it, don't ask again

// An item's states. TVM_SETITEM sets TVIS_DROPHILITED, TVIS_BOLD and TVIS_EXPANDEDONCE; selecting and expanding
// have messages of their own. Any number of items may have TVIS_DROPHILITED set that way.
inline constexpr UINT TVIS_SELECTED = 0x0002;
inline constexpr UINT TVIS_DROPHILITED = 0x0008;
inline constexpr UINT TVIS_BOLD = 0x0010;
inline constexpr UINT TVIS_EXPANDED = 0x0020;
inline constexpr UINT TVIS_EXPANDEDONCE = 0x0040;

// Parts of an item, and places without one.
inline constexpr UINT TVHT_NOWHERE = 0x0001;
inline constexpr UINT TVHT_ONITEMICON = 0x0002;
inline constexpr UINT TVHT_ONITEMLABEL = 0x0004;
inline constexpr UINT TVHT_ONITEMINDENT = 0x0008;
inline constexpr UINT TVHT_ONITEMBUTTON = 0x0010;
inline constexpr UINT TVHT_ONITEMRIGHT = 0x0020;
inline constexpr UINT TVHT_ONITEM = TVHT_ONITEMICON | TVHT_ONITEMLABEL;
inline constexpr UINT TVHT_ABOVE = 0x0100;
inline constexpr UINT TVHT_BELOW = 0x0200;
inline constexpr UINT TVHT_TORIGHT = 0x0400;
inline constexpr UINT TVHT_TOLEFT = 0x0800;

// Places for TVINSERTSTRUCT; TVI_ROOT stands for the parent of the top-level items wherever a parent is named.
inline const HTREEITEM TVI_ROOT = reinterpret_cast<HTREEITEM>(static_cast<INT_PTR>(-0x10000));
inline const HTREEITEM TVI_FIRST = reinterpret_cast<HTREEITEM>(static_cast<INT_PTR>(-0x0FFFF));
inline const HTREEITEM TVI_LAST = reinterpret_cast<HTREEITEM>(static_cast<INT_PTR>(-0x0FFFE));
inline const HTREEITEM TVI_SORT = reinterpret_cast<HTREEITEM>(static_cast<INT_PTR>(-0x0FFFD));

// In a TVITEM: ask the owner by TVN_GETDISPINFO each time.
inline const LPSTR LPSTR_TEXTCALLBACK = reinterpret_cast<LPSTR>(static_cast<INT_PTR>(-1));
inline constexpr int I_IMAGECALLBACK = -1;
inline constexpr int I_CHILDRENCALLBACK = -1;

struct TVITEM
{
    UINT mask; // TVIF_*
    HTREEITEM hItem;
    UINT state;
    UINT stateMask;
    LPSTR pszText;
    int cchTextMax;
    int iImage;
    int iSelectedImage;
    int cChildren; // 0: none, 1: one or more
    LPARAM lParam;
};

struct TVINSERTSTRUCT
{
    HTREEITEM hParent;      // TVI_ROOT or NULL: a top-level item
    HTREEITEM hInsertAfter; // TVI_FIRST, TVI_LAST, TVI_SORT or a sibling; anything else is TVI_LAST
    TVITEM item;
};

struct TVHITTESTINFO
{
    POINT pt; // client
    UINT flags;
    HTREEITEM hItem;
};

// Two items' lParam and the TVSORTCB's: negative, 0 or positive as the first comes before, with or after the other.
using PFNTVCOMPARE = int (*)(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort);

struct TVSORTCB
{
    HTREEITEM hParent;
    PFNTVCOMPARE lpfnCompare; // once it has changed the tree it is called no more, and nothing is sorted
    LPARAM lParam;
};

using PFNTVORDERKEY = void (*)(LPARAM lParam, LPCSTR pszLabel, std::string& key); // appends it

struct TVARRANGECHILDREN
{
    HTREEITEM hParent;
    const HTREEITEM* phChildren;
    int cChildren;
    BOOL bByLabel;
};

// Notifications. A SELCHANGING or ITEMEXPANDING answered with non-zero is refused. An item is still there while
// TVN_DELETEITEM announces it, its children are not. NM_CLICK comes before the selection it makes, which waits for the
// button's release; NM_DBLCLK before the item opens or closes; NM_RCLICK before the context menu. Answered with
// non-zero, each keeps that from happening.
inline constexpr UINT TVN_FIRST = NotifyCode(-400);
inline constexpr UINT TVN_SELCHANGING = TVN_FIRST - 1;     // NMTREEVIEW: itemOld, itemNew, action TVC_*
inline constexpr UINT TVN_SELCHANGED = TVN_FIRST - 2;      // the same
inline constexpr UINT TVN_GETDISPINFO = TVN_FIRST - 3;     // NMTVDISPINFO: fill in what item.mask asks for
inline constexpr UINT TVN_SETDISPINFO = TVN_FIRST - 4;     // NMTVDISPINFO: a callback text was edited
inline constexpr UINT TVN_ITEMEXPANDING = TVN_FIRST - 5;   // NMTREEVIEW: itemNew, action TVE_*
inline constexpr UINT TVN_ITEMEXPANDED = TVN_FIRST - 6;    // the same
inline constexpr UINT TVN_BEGINDRAG = TVN_FIRST - 7;       // NMTREEVIEW: itemNew pressed, ptDrag where
inline constexpr UINT TVN_BEGINRDRAG = TVN_FIRST - 8;      // the same with the right button
inline constexpr UINT TVN_DELETEITEM = TVN_FIRST - 9;      // NMTREEVIEW: itemOld's hItem and lParam
inline constexpr UINT TVN_BEGINLABELEDIT = TVN_FIRST - 10; // NMTVDISPINFO; non-zero refuses
inline constexpr UINT TVN_ENDLABELEDIT = TVN_FIRST - 11;   // NMTVDISPINFO: pszText is NULL when cancelled

// What caused a change of the selection.
inline constexpr UINT TVC_UNKNOWN = 0;
inline constexpr UINT TVC_BYMOUSE = 1;
inline constexpr UINT TVC_BYKEYBOARD = 2;

struct NMTREEVIEW
{
    NMHDR hdr;
    UINT action;
    TVITEM itemOld; // hItem, lParam and state; all 0 without an item
    TVITEM itemNew;
    POINT ptDrag; // client
};

struct NMTVDISPINFO
{
    NMHDR hdr;
    TVITEM item; // hItem, lParam and state are given; pszText points to a buffer of cchTextMax bytes, or is replaced
};
using TVDISPINFO = NMTVDISPINFO;

static_assert(sizeof(void*) != 4 ||
              (sizeof(TVITEM) == 40 && sizeof(TVINSERTSTRUCT) == 48 && sizeof(TVHITTESTINFO) == 16 &&
               sizeof(TVSORTCB) == 12 && sizeof(NMTREEVIEW) == 104 && sizeof(NMTVDISPINFO) == 52));
