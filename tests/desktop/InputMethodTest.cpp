// Input methods in the toolkit's fields: dead keys, what is composed, and what they ask.
#include "Toolkit/controls/Edit.h"
#include "tests/desktop/DesktopTest.h"

#include <QInputMethodEvent>

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

    void TearDown() override
    {
        m_field.DestroyWindow();
        DesktopTest::TearDown();
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
    bool IsEnabled() { return Ask(Qt::ImEnabled).toBool() && Widget().testAttribute(Qt::WA_InputMethodEnabled); }
    std::string Text() const { return m_field.GetWindowText().GetString(); }

    CEdit m_field;
};

} // namespace

TEST_F(InputMethodTest, WhatIsFinishedIsTypedAndWhatIsComposedIsOnlyShown)
{
    Send("´");
    EXPECT_EQ("", Text());
    const int nCaret = Ask(Qt::ImCursorRectangle).toRect().left();
    EXPECT_LT(23, nCaret) << "behind what is composed";
    Send("", "é");
    EXPECT_EQ("é", Text());
    Send("", "日本");
    EXPECT_EQ("é日本", Text());
    m_field.SetSel(0, 2);
    Send("", "😀");
    EXPECT_EQ("😀日本", Text()) << "in place of the selection";
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
    const QRect caret = Ask(Qt::ImCursorRectangle).toRect();
    EXPECT_EQ(23, caret.left()) << "in the window's coordinates";
    EXPECT_TRUE(QRect(20, 30, 160, 20).contains(caret));
    m_field.SetSel(1, 1);
    EXPECT_LT(caret.left(), Ask(Qt::ImCursorRectangle).toRect().left());
}

TEST_F(InputMethodTest, TextAroundTheCaretIsReplacedOrDeletedOnRequest)
{
    m_field.SetWindowText("wålk");
    m_field.SetSel(4, 4); // behind the l
    Send("", "a", -2, 2);
    EXPECT_EQ("wak", Text());
    Send("", "", -1, 2);
    EXPECT_EQ("w", Text());
}

TEST_F(InputMethodTest, OnlyAFieldThatTakesTextHasAnInputMethod)
{
    Send("´");
    m_probe->SetFocus();
    Settle();
    EXPECT_FALSE(IsEnabled());
    m_probe->TakeLog();
    Send("", "é");
    EXPECT_EQ("", m_probe->TakeLog()) << "nobody to type it for";
    m_field.SetFocus();
    EXPECT_TRUE(IsEnabled());
    EXPECT_EQ(23, Ask(Qt::ImCursorRectangle).toRect().left()) << "what was being composed went with the focus";
    m_field.SetReadOnly();
    EXPECT_FALSE(Ask(Qt::ImEnabled).toBool());
}
