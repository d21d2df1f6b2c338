#include "Toolkit/menu/Menu.h"

#include "tests/support/DesktopTest.h"
#include "tests/toolkit/SpyWnd.h"

namespace
{

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

class MenuTest : public DesktopTest, public LedgerBook
{
protected:
    Ledger Track(std::string_view choice, UINT flags = 0)
    {
        desktop.Choose(std::string(choice));
        Write("result " + std::to_string(menu.TrackPopupMenu(flags, 30, 40, &owner)));
        desktop.Run();
        return TakeLedger();
    }

    OwnerWnd owner{"owner", *this, {}};
    CMenu menu;
};

TEST_F(MenuTest, TheChosenCommandIsPostedToTheOwnerOrReturned)
{
    owner.Show(nullptr, {0, 0, 100, 100});
    CMenu below;
    EXPECT_FALSE(below.AppendMenu(MF_STRING, 1, "nothing to append to"));
    below.CreatePopupMenu();
    below.AppendMenu(MF_STRING, 104, "&Folder");
    EXPECT_FALSE(menu.TrackPopupMenu(0, 0, 0, &owner));
    menu.CreatePopupMenu();
    EXPECT_FALSE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 101, "&Open\tEnter");
    menu.AppendMenu(MF_STRING | MF_CHECKED, 102, "Salt && Pepper");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING | MF_GRAYED, 103, "Paste");
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(below.Detach()), "New");
    EXPECT_FALSE(menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(menu.GetSafeHmenu()), "itself"));
    EXPECT_FALSE(menu.AppendMenu(MF_POPUP, 12345, "no menu"));

    EXPECT_EQ(Ledger({"result 1", "command 104"}), Track("Folder"));
    EXPECT_EQ(std::vector<std::string>({"[Open | *Salt & Pepper | - | (Paste) | New > [Folder]]"}),
              desktop.TakeMenus());
    EXPECT_EQ(CPoint(30, 40), desktop.LastMenuPlace());
    EXPECT_EQ(Ledger({"result 1"}), Track("Paste")); // cannot be chosen
    EXPECT_EQ(Ledger({"result 101"}), Track("Open", TPM_RETURNCMD));
    EXPECT_FALSE(menu.TrackPopupMenu(0, 0, 0, nullptr));
}

} // namespace
