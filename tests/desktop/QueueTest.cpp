// What asks the user in a loop of its own: menus and message boxes; and a queue that never rests.
#include "Toolkit/menu/MessageBox.h"
#include "tests/desktop/DesktopTest.h"

#include <QAbstractButton>
#include <QMenu>
#include <QMessageBox>

namespace
{

class QueueTest : public DesktopTest
{
protected:
    int Ask(UINT nType, const std::function<void(QMessageBox&)>& onShown)
    {
        const WhenShown<QMessageBox> watcher(onShown);
        return ::MessageBox(m_probe->GetSafeHwnd(), "Delete <b>all</b>?", "Views", nType);
    }
};

} // namespace

TEST_F(QueueTest, APictureThatNeverRestsDoesNotStarveTheUser)
{
    m_probe->m_after[WM_PAINT] = [&] { m_probe->Invalidate(); };
    m_probe->Invalidate();
    QCoreApplication::processEvents();
    QTest::mousePress(Window(), Qt::LeftButton, {}, {30, 40});
    std::string log;
    EXPECT_TRUE(RunUntil([&] { return (log += m_probe->TakeLog()).ends_with("ldown 30,40"); }));
    m_probe->m_after.clear();
    QTest::mouseRelease(Window(), Qt::LeftButton, {}, {30, 40});
}

TEST_F(QueueTest, AMessageBoxOffersItsButtonsAndGivesTheAnswer)
{
    QTest::mousePress(Window(), Qt::LeftButton, {}, {30, 40});
    Settle();
    EXPECT_LT(::GetKeyState(VK_LBUTTON), 0);
    std::string shown;
    EXPECT_EQ(IDOK, Ask(MB_OKCANCEL | MB_ICONEXCLAMATION, [&](QMessageBox& box) {
                  shown = (box.windowTitle() + ": " + box.text()).toStdString();
                  EXPECT_EQ(QMessageBox::Warning, box.icon());
                  EXPECT_EQ(Qt::PlainText, box.textFormat());
                  EXPECT_EQ(QMessageBox::Ok | QMessageBox::Cancel, box.standardButtons());
                  EXPECT_EQ(&Widget(), box.parentWidget());
                  Settle();
                  EXPECT_GE(::GetKeyState(VK_LBUTTON), 0) << "the button held is let go";
                  box.button(QMessageBox::Ok)->click();
              }));
    EXPECT_EQ("Views: Delete <b>all</b>?", shown);

    EXPECT_EQ(IDNO, Ask(MB_YESNO, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }));
    EXPECT_EQ(IDCANCEL, Ask(MB_YESNOCANCEL, [](QMessageBox& box) { box.close(); }));
    EXPECT_EQ(IDNO, Ask(MB_YESNO, [&](QMessageBox&) { m_probe->DestroyWindow(); })) << "it ends with its owner";
}

TEST_F(QueueTest, AMenusItemsAreShownAsTheyAreAndChosenByTheirKeys)
{
    std::string shown;
    const WhenShown<QMenu> user([&shown](QMenu& menu) {
        for (const QAction* pAction : menu.actions())
            shown += "[" + pAction->text().toStdString() + (pAction->isChecked() ? " checked" : "") +
                     (pAction->isEnabled() ? "" : " grayed") + (pAction->menu() ? " >" : "") + "]";
        QTest::keyClick(&menu, Qt::Key_G);
    });
    CMenu menu;
    FillMenu(menu);
    EXPECT_EQ(2, menu.TrackPopupMenu(TPM_RETURNCMD, 20, 20, &*m_probe));
    EXPECT_EQ("[&Open\tEnter][&Grid checked][][&Paste grayed][&New >]", shown);
}
