#include "Toolkit/window/Menu.h"

#include "Toolkit/base/HandleTable.h"
#include "Toolkit/window/Desktop.h"
#include "Toolkit/window/Queue.h"
#include "Toolkit/window/Wnd.h"

#include <utility>

namespace
{
constexpr UINT kNone = 0xFFFFFFFF;
constexpr UINT kGrayed = MF_GRAYED | MF_DISABLED;

struct Item
{
    toolkit::MenuItem look; // without its items
    HMENU hSub = nullptr;
};

struct Menu
{
    std::vector<Item> items;
};

toolkit::HandleTable<HMENU, Menu> s_menus;
bool s_bTracking = false;

// Gives the flag back whatever happens.
class Tracking
{
public:
    Tracking() { s_bTracking = true; }
    ~Tracking() { s_bTracking = false; }
    Tracking(const Tracking&) = delete;
    Tracking& operator=(const Tracking&) = delete;
};

void Destroy(HMENU hMenu)
{
    const std::unique_ptr<Menu> menu = s_menus.Remove(hMenu);
    if (!menu)
        return;
    for (const Item& item : menu->items)
        Destroy(item.hSub);
}

Item* FindByCommand(HMENU hMenu, UINT command)
{
    Menu* pMenu = s_menus.Find(hMenu);
    if (!pMenu)
        return nullptr;
    for (Item& item : pMenu->items) {
        if (Item* pBelow = FindByCommand(item.hSub, command))
            return pBelow;
        if (!item.look.popup && !item.look.separator && item.look.command == command)
            return &item;
    }
    return nullptr;
}

Item* FindByPosition(HMENU hMenu, UINT nPos)
{
    Menu* pMenu = s_menus.Find(hMenu);
    return pMenu && nPos < pMenu->items.size() ? &pMenu->items[nPos] : nullptr;
}

Item* FindItem(HMENU hMenu, UINT nItem, UINT nFlags)
{
    return nFlags & MF_BYPOSITION ? FindByPosition(hMenu, nItem) : FindByCommand(hMenu, nItem);
}

// As it is now: the menu may change or go while it is shown.
std::vector<toolkit::MenuItem> Snapshot(HMENU hMenu)
{
    std::vector<toolkit::MenuItem> items;
    const Menu* pMenu = s_menus.Find(hMenu);
    for (const Item& item : pMenu ? pMenu->items : std::vector<Item>()) {
        items.push_back(item.look);
        items.back().items = Snapshot(item.hSub);
    }
    return items;
}

Item MakeItem(UINT nFlags, UINT_PTR nIDNewItem, LPCSTR pszNewItem)
{
    Item item;
    item.look.separator = nFlags & MF_SEPARATOR;
    item.look.popup = nFlags & MF_POPUP;
    item.look.checked = nFlags & MF_CHECKED;
    item.look.enabled = !(nFlags & kGrayed);
    if (!item.look.separator && pszNewItem)
        item.look.text = pszNewItem;
    if (item.look.popup)
        item.hSub = reinterpret_cast<HMENU>(nIDNewItem);
    else if (!item.look.separator)
        item.look.command = static_cast<UINT>(nIDNewItem);
    return item;
}

UINT StateOf(const toolkit::MenuItem& look)
{
    return (look.separator ? MF_SEPARATOR : 0) | (look.popup ? MF_POPUP : 0) | (look.checked ? MF_CHECKED : 0) |
           (look.enabled ? 0 : MF_GRAYED);
}
} // namespace

CMenu::~CMenu()
{
    DestroyMenu();
}

BOOL CMenu::CreatePopupMenu()
{
    if (!m_hMenu)
        m_hMenu = s_menus.Add(std::make_unique<Menu>());
    else
        return FALSE;
    return m_hMenu != nullptr;
}

BOOL CMenu::DestroyMenu()
{
    const HMENU hMenu = Detach();
    const bool bThere = s_menus.Find(hMenu) != nullptr;
    Destroy(hMenu);
    return bThere;
}

HMENU CMenu::Detach()
{
    return std::exchange(m_hMenu, nullptr);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCSTR pszNewItem)
{
    Menu* pMenu = s_menus.Find(m_hMenu);
    Item item = MakeItem(nFlags, nIDNewItem, pszNewItem);
    if (!pMenu || (item.look.popup && !s_menus.Find(item.hSub)) || (item.hSub && item.hSub == m_hMenu))
        return FALSE;
    pMenu->items.push_back(std::move(item));
    return TRUE;
}

UINT CMenu::GetMenuItemCount() const
{
    const Menu* pMenu = s_menus.Find(m_hMenu);
    return pMenu ? static_cast<UINT>(pMenu->items.size()) : 0;
}

UINT CMenu::GetMenuItemID(int nPos) const
{
    const Item* pItem = FindByPosition(m_hMenu, static_cast<UINT>(nPos));
    return pItem && !pItem->look.popup ? pItem->look.command : kNone;
}

UINT CMenu::GetMenuState(UINT nItem, UINT nFlags) const
{
    const Item* pItem = FindItem(m_hMenu, nItem, nFlags);
    return pItem ? StateOf(pItem->look) : kNone;
}

DWORD CMenu::CheckMenuItem(UINT nItem, UINT nCheck)
{
    Item* pItem = FindItem(m_hMenu, nItem, nCheck);
    if (!pItem)
        return kNone;
    return std::exchange(pItem->look.checked, (nCheck & MF_CHECKED) != 0) ? MF_CHECKED : MF_UNCHECKED;
}

DWORD CMenu::EnableMenuItem(UINT nItem, UINT nEnable)
{
    Item* pItem = FindItem(m_hMenu, nItem, nEnable);
    if (!pItem)
        return kNone;
    return std::exchange(pItem->look.enabled, !(nEnable & kGrayed)) ? MF_ENABLED : MF_GRAYED;
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, const RECT*)
{
    const HWND hOwner = pWnd ? pWnd->GetSafeHwnd() : nullptr;
    if (s_bTracking || !IsWindow(hOwner) || !s_menus.Find(m_hMenu))
        return FALSE;
    const Tracking tracking;
    ReleaseCapture();
    toolkit::UpdateWake();
    const UINT command = toolkit::CurrentDesktop().TrackMenu(hOwner, Snapshot(m_hMenu), {x, y});
    if (nFlags & TPM_RETURNCMD)
        return static_cast<BOOL>(command);
    if (command != 0 && !(nFlags & TPM_NONOTIFY))
        PostMessage(hOwner, WM_COMMAND, command & 0xFFFF, 0);
    return TRUE;
}

int toolkit::CountMenus()
{
    return s_menus.GetCount();
}
