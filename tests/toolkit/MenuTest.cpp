#include "Toolkit/window/Menu.h"

#include "tests/support/DesktopTest.h"
#include "tests/toolkit/SpyWnd.h"

namespace
{

constexpr UINT kOpen = 101, kGrid = 102, kPaste = 103, kFolder = 104;

class MenuTest : public DesktopTest, public LedgerBook
{
protected:
    // Its commands, as the map would see them.
    class OwnerWnd : public SpyWnd
    {
    public:
        using SpyWnd::SpyWnd;

    protected:
        BOOL OnCommand(WPARAM wParam, LPARAM) override
        {
            m_book.Write("command " + std::to_string(wParam));
            return TRUE;
        }
    };

    MenuTest()
    {
        owner.Show(nullptr, {0, 0, 100, 100});
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, kOpen, "&Open\tEnter");
        menu.AppendMenu(MF_STRING | MF_CHECKED, kGrid, "Salt && Pepper");
        menu.AppendMenu(MF_SEPARATOR);
        menu.AppendMenu(MF_STRING | MF_GRAYED, kPaste, "Paste");
        CMenu below;
        below.CreatePopupMenu();
        below.AppendMenu(MF_STRING, kFolder, "&Folder");
        menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(below.Detach()), "New");
    }

    Ledger Track(UINT flags = 0)
    {
        Write("result " + std::to_string(menu.TrackPopupMenu(flags, 30, 40, &owner)));
        desktop.Run();
        return TakeLedger();
    }

    OwnerWnd owner{"owner", *this, {}};
    CMenu menu;
};

TEST_F(MenuTest, TheChosenCommandIsPostedToTheOwner)
{
    desktop.Choose("Folder");
    EXPECT_EQ(Ledger({"result 1", "command 104"}), Track());
    EXPECT_EQ(std::vector<std::string>({"[Open | *Salt & Pepper | - | (Paste) | New > [Folder]]"}),
              desktop.TakeMenus());
    EXPECT_EQ(CPoint(30, 40), desktop.LastMenuPlace());

    desktop.Choose("Paste"); // grayed: cannot be chosen
    EXPECT_EQ(Ledger({"result 1"}), Track());
    desktop.Choose("Open");
    EXPECT_EQ(Ledger({"result 101"}), Track(TPM_RETURNCMD));
    desktop.Choose("Open");
    EXPECT_EQ(Ledger({"result 1"}), Track(TPM_NONOTIFY));
}

TEST_F(MenuTest, ItemsAreFoundByCommandEverywhereAndByPlace)
{
    EXPECT_EQ(MF_UNCHECKED, menu.CheckMenuItem(kFolder, MF_CHECKED));
    EXPECT_EQ(MF_GRAYED, menu.EnableMenuItem(3, MF_BYPOSITION | MF_ENABLED));
    EXPECT_EQ(MF_CHECKED, menu.CheckMenuItem(1, MF_BYPOSITION | MF_UNCHECKED));
    EXPECT_EQ(0xFFFFFFFFu, menu.CheckMenuItem(999, MF_CHECKED));
    EXPECT_EQ(5u, menu.GetMenuItemCount());
    EXPECT_EQ(kOpen, menu.GetMenuItemID(0));
    EXPECT_EQ(0xFFFFFFFFu, menu.GetMenuItemID(4));
    EXPECT_EQ(MF_SEPARATOR, menu.GetMenuState(2, MF_BYPOSITION));
    Track();
    EXPECT_EQ("[Open | Salt & Pepper | - | Paste | New > [*Folder]]", desktop.TakeMenus().back());
}

TEST_F(MenuTest, WhatCannotBeShownOrOwnedIsRefused)
{
    CMenu other;
    EXPECT_FALSE(other.AppendMenu(MF_STRING, 1, "x"));
    EXPECT_FALSE(other.TrackPopupMenu(0, 0, 0, &owner));
    EXPECT_FALSE(menu.CreatePopupMenu()); // has one
    EXPECT_FALSE(menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(menu.GetSafeHmenu()), "itself"));
    EXPECT_FALSE(menu.AppendMenu(MF_POPUP, 12345, "no menu"));
    EXPECT_FALSE(menu.TrackPopupMenu(0, 0, 0, nullptr));
    owner.DestroyWindow();
    EXPECT_FALSE(menu.TrackPopupMenu(0, 0, 0, &owner));
    EXPECT_EQ(std::vector<std::string>(), desktop.TakeMenus());
}

} // namespace
