#include "Toolkit/menu/Menu.h"

#include "Toolkit/base/HandleTable.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/window/Wnd.h"

#include <utility>

namespace
{
constexpr UINT kGrayed = MF_GRAYED | MF_DISABLED;

struct Item
{
    toolkit::MenuItem look; // without its items
    HMENU hSub = nullptr;
};

using Menu = std::vector<Item>;

struct
{
    toolkit::HandleTable<HMENU, Menu> all;
    bool bTracking = false;
} s_menus;

// Gives the flag back whatever happens.
class Tracking
{
public:
    Tracking() { s_menus.bTracking = true; }
    ~Tracking() { s_menus.bTracking = false; }
    Tracking(const Tracking&) = delete;
    Tracking& operator=(const Tracking&) = delete;
};

void Destroy(HMENU hMenu)
{
    const std::unique_ptr<Menu> menu = s_menus.all.Remove(hMenu);
    if (!menu)
        return;
    for (const Item& item : *menu)
        Destroy(item.hSub);
}

// As it is now: the menu may change or go while it is shown.
std::vector<toolkit::MenuItem> Snapshot(HMENU hMenu)
{
    std::vector<toolkit::MenuItem> items;
    const Menu* pMenu = s_menus.all.Find(hMenu);
    for (const Item& item : pMenu ? *pMenu : Menu()) {
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
} // namespace

CMenu::~CMenu()
{
    DestroyMenu();
}

BOOL CMenu::CreatePopupMenu()
{
    if (m_hMenu)
        return FALSE;
    m_hMenu = s_menus.all.Add(std::make_unique<Menu>());
    return m_hMenu != nullptr;
}

BOOL CMenu::DestroyMenu()
{
    const HMENU hMenu = Detach();
    const bool bThere = s_menus.all.Find(hMenu) != nullptr;
    Destroy(hMenu);
    return bThere;
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCSTR pszNewItem)
{
    Menu* pMenu = s_menus.all.Find(m_hMenu);
    Item item = MakeItem(nFlags, nIDNewItem, pszNewItem);
    if (!pMenu || (item.look.popup && !s_menus.all.Find(item.hSub)) || (item.hSub && item.hSub == m_hMenu))
        return FALSE;
    pMenu->push_back(std::move(item));
    return TRUE;
}

BOOL CMenu::SetLastHint(LPCSTR pszHint)
{
    Menu* pMenu = s_menus.all.Find(m_hMenu);
    if (!pMenu || pMenu->empty())
        return FALSE;
    pMenu->back().look.hint = pszHint ? pszHint : "";
    return TRUE;
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, const RECT*)
{
    const HWND hOwner = pWnd ? pWnd->GetSafeHwnd() : nullptr;
    if (s_menus.bTracking || !IsWindow(hOwner) || !s_menus.all.Find(m_hMenu))
        return FALSE;
    const Tracking tracking;
    ReleaseCapture();
    toolkit::UpdateWake();
    const UINT command = toolkit::CurrentDesktop().TrackMenu(hOwner, Snapshot(m_hMenu), {x, y});
    if (nFlags & TPM_RETURNCMD)
        return static_cast<BOOL>(command);
    if (command != 0)
        PostMessage(hOwner, WM_COMMAND, command & 0xFFFF, 0);
    return TRUE;
}

int toolkit::CountMenus()
{
    return s_menus.all.GetCount();
}
