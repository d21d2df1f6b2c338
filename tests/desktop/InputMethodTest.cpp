// Input methods in the toolkit's fields: dead keys, what is composed, and what they ask.
#include "Toolkit/controls/edit/Edit.h"
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
