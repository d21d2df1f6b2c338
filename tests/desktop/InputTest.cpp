// Keys, wheel and drops as Qt has them; input methods in the toolkit's fields: dead keys, what is composed, what they
// ask.
#include "Toolkit/controls/edit/Edit.h"
#include "Toolkit/exchange/DropTarget.h"
#include "tests/desktop/DesktopTest.h"

#include <QDropEvent>
#include <QInputMethodEvent>
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

namespace
{

class InputMethodTest : public DesktopTest
{
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        ASSERT_TRUE(m_field.Create(WS_CHILD | WS_VISIBLE, CRect(20, 30, 180, 50), &*m_probe, 1));
        m_field.SetFocus();
        Settle();
    }

    void Send(const QString& composed, const QString& finished = {}, int nFrom = 0, int nReplaced = 0)
    {
        QInputMethodEvent event(composed, {});
        event.setCommitString(finished, nFrom, nReplaced);
        QCoreApplication::sendEvent(&Widget(), &event);
        Settle();
    }

    QVariant Ask(Qt::InputMethodQuery query)
    {
        QInputMethodQueryEvent event(query);
        QCoreApplication::sendEvent(&Widget(), &event);
        return event.value(query);
    }
    QRect Caret() { return Ask(Qt::ImCursorRectangle).toRect(); }
    bool IsEnabled() { return Ask(Qt::ImEnabled).toBool() && Widget().testAttribute(Qt::WA_InputMethodEnabled); }
    std::string Text() const { return m_field.GetWindowText().GetString(); }

    CEdit m_field;
};

} // namespace

TEST_F(InputMethodTest, WhatIsFinishedIsTypedAndWhatIsComposedIsOnlyShown)
{
    Send("´");
    EXPECT_EQ("", Text());
    EXPECT_LT(23, Caret().left()) << "behind what is composed";
    Send("", "é");
    Send("", "日本");
    EXPECT_EQ("é日本", Text());
    m_field.SetSel(0, 2);
    Send("", "😀");
    EXPECT_EQ("😀日本", Text()) << "in place of the selection";

    m_field.SetWindowText("wålk");
    m_field.SetSel(4, 4); // behind the l
    Send("", "a", -2, 2);
    EXPECT_EQ("wak", Text()) << "in place of what stands before it";
    Send("", "", -1, 2);
    EXPECT_EQ("w", Text());
}

TEST_F(InputMethodTest, TheFieldAnswersWhereItsCaretIsAndWhatStandsAroundIt)
{
    m_field.SetWindowText("a😀é");
    m_field.SetSel(7, 5);
    EXPECT_TRUE(IsEnabled());
    EXPECT_EQ("a😀é", Ask(Qt::ImSurroundingText).toString().toStdString());
    EXPECT_EQ(3, Ask(Qt::ImCursorPosition).toInt()) << "in UTF-16 units";
    EXPECT_EQ(4, Ask(Qt::ImAnchorPosition).toInt());
    EXPECT_EQ("é", Ask(Qt::ImCurrentSelection).toString().toStdString());

    m_field.SetSel(0, 0);
    EXPECT_EQ(23, Caret().left()) << "in the window's coordinates";
    EXPECT_TRUE(QRect(20, 30, 160, 20).contains(Caret()));
    m_field.SetSel(1, 1);
    EXPECT_LT(23, Caret().left());
}

TEST_F(InputMethodTest, OnlyAFieldThatTakesTextHasAnInputMethod)
{
    Send("´");
    m_probe->SetFocus();
    EXPECT_EQ("", Heard());
    EXPECT_FALSE(IsEnabled());
    Send("", "é");
    EXPECT_EQ("", Heard()) << "nobody to type it for";
    m_field.SetFocus();
    EXPECT_TRUE(IsEnabled());
    EXPECT_EQ(23, Caret().left()) << "what was being composed went with the focus";
}
