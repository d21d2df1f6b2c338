// CMenu: popup menus, shown by the desktop.
#pragma once

#include "Toolkit/base/Geometry.h"
#include "Toolkit/desktop/MenuItems.h"

#include <utility>

class CWnd;

using HMENU = struct HMENU__*;

// What AppendMenu takes.
inline constexpr UINT MF_STRING = 0x0000;
inline constexpr UINT MF_ENABLED = 0x0000;
inline constexpr UINT MF_UNCHECKED = 0x0000;
inline constexpr UINT MF_GRAYED = 0x0001;
inline constexpr UINT MF_DISABLED = 0x0002; // looks the same as grayed here
inline constexpr UINT MF_CHECKED = 0x0008;
inline constexpr UINT MF_POPUP = 0x0010;
inline constexpr UINT MF_SEPARATOR = 0x0800;

inline constexpr UINT TPM_LEFTALIGN = 0x0000;
inline constexpr UINT TPM_LEFTBUTTON = 0x0000;
inline constexpr UINT TPM_RIGHTBUTTON = 0x0002; // no difference here: both buttons choose
inline constexpr UINT TPM_RETURNCMD = 0x0100;

// Owns its menu, and with it the menus below, until DestroyMenu, Detach or its own end.
class TOOLKIT_API CMenu
{
public:
    CMenu() = default;
    virtual ~CMenu();
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;

    BOOL CreatePopupMenu(); // FALSE when there is one already, or no memory
    BOOL DestroyMenu();
    HMENU GetSafeHmenu() const { return m_hMenu; }
    HMENU Detach() { return std::exchange(m_hMenu, nullptr); } // gives the menu away, as MF_POPUP takes it

    // Texts may mark their key with "&" and carry a shortcut behind a tab. nIDNewItem is the command, with MF_POPUP a
    // menu that the new item takes over.
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCSTR pszNewItem = nullptr);

    // What is said beside the last item when the mouse rests there: what it does, or why it cannot be chosen.
    BOOL SetLastHint(LPCSTR pszHint);

    // Shows the menu at a point of the screen until the user has chosen or gone elsewhere. The chosen command is posted
    // to the owner as WM_COMMAND; with TPM_RETURNCMD it is the result instead, 0 when nothing was chosen. Else the
    // result is FALSE when the menu could not be shown: another one is being tracked, or there is no owner. Messages
    // run meanwhile: touch nothing afterwards that may be gone, this menu included.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, const RECT* pRect = nullptr);

private:
    HMENU m_hMenu = nullptr;
};

namespace toolkit
{
TOOLKIT_API int CountMenus(); // alive, those below others included; what tests compare
} // namespace toolkit
