// Popup menus in Qt's menus.
#include "Toolkit/menu/Menu.h"

#include "tests/desktop/DesktopTest.h"

#include <QMenu>

namespace
{

class MenuTest : public DesktopTest
{
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        CMenu below;
        below.CreatePopupMenu();
        below.AppendMenu(MF_STRING, 7, "&Folder");
        m_menu.CreatePopupMenu();
        m_menu.AppendMenu(MF_STRING, 5, "&Open\tEnter");
        m_menu.AppendMenu(MF_STRING | MF_CHECKED, 6, "&Grid");
        m_menu.AppendMenu(MF_SEPARATOR);
        m_menu.AppendMenu(MF_STRING | MF_GRAYED, 8, "&Paste");
        m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(below.Detach()), "&New");
    }

    // Shows the menu and has the user do something once it is there; the chosen command.
    int Track(const std::function<void(QMenu&)>& user)
    {
        const WhenShown<QMenu> watcher(user);
        return m_menu.TrackPopupMenu(TPM_RETURNCMD, 20, 20, &*m_probe);
    }

    CMenu m_menu;
};

TEST_F(MenuTest, ItemsAreShownAsTheyAreAndChosenByTheirKeys)
{
    std::string shown;
    EXPECT_EQ(6, Track([&shown](QMenu& menu) {
                  for (const QAction* pAction : menu.actions())
                      shown += "[" + pAction->text().toStdString() + (pAction->isChecked() ? " checked" : "") +
                               (pAction->isEnabled() ? "" : " grayed") + (pAction->menu() ? " >" : "") + "]";
                  QTest::keyClick(&menu, Qt::Key_G);
              }));
    EXPECT_EQ("[&Open\tEnter][&Grid checked][][&Paste grayed][&New >]", shown);
}

} // namespace
