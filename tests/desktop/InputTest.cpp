#include "Toolkit/exchange/DropTarget.h"
#include "tests/desktop/DesktopTest.h"

#include <QDropEvent>
#include <QMimeData>
#include <QWheelEvent>

namespace
{

class InputTest : public DesktopTest
{
protected:
    std::string After(QEvent&& event)
    {
        QCoreApplication::sendEvent(&Widget(), &event);
        return Heard();
    }

    std::string AfterWheel(QPoint turn, Qt::KeyboardModifiers modifiers = {})
    {
        return After(QWheelEvent(QPointF(5, 5), Widget().mapToGlobal(QPointF(5, 5)), {}, turn, Qt::NoButton, modifiers,
                                 Qt::NoScrollPhase, false));
    }
};

} // namespace

TEST_F(InputTest, RareKeysAreTheKeysTheyAreAndOnlyPrintableTextIsTyped)
{
    struct Case
    {
        Qt::Key key;
        const char* pszText;
        const char* pszHeard;
        Qt::KeyboardModifier modifier = Qt::NoModifier;
    };
    const Case cases[] = {
        {Qt::Key_Enter, "\r", "key Return; char 13", Qt::KeypadModifier},
        {Qt::Key_Plus, "+", "key Keypad+; char 43", Qt::KeypadModifier},
        {Qt::Key_Plus, "+", "key +; char 43"},
        {Qt::Key_Minus, "-", "key -; char 45"},
        {Qt::Key_Menu, "", "key Menu"},
        {Qt::Key_Backspace, "\b", "key Backspace; char 8"},
        {Qt::Key_1, "1", "key 1", Qt::ControlModifier},
        {Qt::Key_unknown, "€", "key other; char 8364", Qt::GroupSwitchModifier},
        {Qt::Key_unknown, "😀", "key other; char 128512"},
        {Qt::Key_Dead_Acute, "", "key other"},
    };
    ::SetFocus(m_probe->GetSafeHwnd());
    for (const Case& of : cases) {
        EXPECT_EQ(of.pszHeard, After(QKeyEvent(QEvent::KeyPress, of.key, of.modifier, of.pszText)));
        EXPECT_EQ("", After(QKeyEvent(QEvent::KeyRelease, of.key, of.modifier, of.pszText)));
    }
}

TEST_F(InputTest, AKeyIsDownAsSoonAsItIsPressedAndWhileItRepeats)
{
    ::SetFocus(m_probe->GetSafeHwnd());
    After(QKeyEvent(QEvent::KeyPress, Qt::Key_Control, {}));
    EXPECT_LT(::GetKeyState(VK_CONTROL), 0);
    After(QKeyEvent(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier));
    EXPECT_GE(::GetKeyState(VK_CONTROL), 0);

    EXPECT_EQ("key Delete", After(QKeyEvent(QEvent::KeyPress, Qt::Key_Delete, {})));
    EXPECT_EQ("", After(QKeyEvent(QEvent::KeyRelease, Qt::Key_Delete, {}, {}, true)));
    EXPECT_LT(::GetKeyState(VK_DELETE), 0);
    EXPECT_EQ("key Delete", After(QKeyEvent(QEvent::KeyPress, Qt::Key_Delete, {}, {}, true)));
}

TEST_F(InputTest, TheWheelTurnsByNotchesAndATouchpadByPiecesThatAddUp)
{
    ::SetFocus(m_probe->GetSafeHwnd());
    EXPECT_EQ("wheel 120", AfterWheel({0, 120}));
    EXPECT_EQ("wheel -240", AfterWheel({0, -240}));
    EXPECT_EQ("wheel 120", AfterWheel({120, 0}, Qt::AltModifier)); // Qt turns it sideways then
    EXPECT_EQ("", AfterWheel({120, 0}));
    EXPECT_EQ("", AfterWheel({0, 6}));
    EXPECT_EQ("", AfterWheel({0, 6}));
    EXPECT_EQ("wheel 15", AfterWheel({0, 6})); // 3 are left over
    EXPECT_EQ("wheel 15", AfterWheel({0, 12}));
}

// Copies what is dropped while Ctrl is down, and moves it else.
class CCopyTarget : public COleDropTarget
{
public:
    DROPEFFECT OnDragOver(CWnd*, COleDataObject*, DWORD dwKeys, CPoint) override
    {
        return dwKeys & MK_CONTROL ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
    }
    BOOL OnDrop(CWnd*, COleDataObject*, DROPEFFECT, CPoint) override { return TRUE; }
};

TEST_F(InputTest, CtrlThatIsUpBeforeTheDropArrivesStillCopies)
{
    CCopyTarget target;
    ASSERT_TRUE(target.Register(&*m_probe));
    QMimeData data;
    data.setText("dragged");
    const Qt::DropActions both = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter({10, 10}, both, &data, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move({20, 10}, both, &data, Qt::LeftButton, Qt::ControlModifier);
    QDropEvent drop({20, 10}, both, &data, Qt::NoButton, Qt::NoModifier);
    for (QEvent* pEvent : std::initializer_list<QEvent*>{&enter, &move, &drop})
        QCoreApplication::sendEvent(&Widget(), pEvent);
    EXPECT_EQ(Qt::CopyAction, move.dropAction());
    EXPECT_EQ(Qt::CopyAction, drop.dropAction());
}
