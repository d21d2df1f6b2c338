// What screen readers and their like see of the toolkit's windows, and what they are told of.
#include "Toolkit/access/Accessible.h"

#include "Editor/EditorApp.h"
#include "Editor/app/QtPictureReader.h"
#include "Toolkit/controls/edit/Edit.h"
#include "Toolkit/controls/list/ListCtrl.h"
#include "Toolkit/controls/tree/TreeCtrl.h"
#include "tests/desktop/DesktopTest.h"

#include <QAccessible>
#include <QDir>
#include <QTemporaryDir>

namespace
{

const std::map<QAccessible::Role, std::string> kRoles = {
    {QAccessible::Window, "window"},
    {QAccessible::List, "list"},
    {QAccessible::ListItem, "item"},
    {QAccessible::Tree, "tree"},
    {QAccessible::TreeItem, "branch"},
    {QAccessible::ToolBar, "tools"},
    {QAccessible::EditableText, "field"},
    {QAccessible::Button, "button"},
    {QAccessible::Pane, "pane"},
    {QAccessible::StatusBar, "status"},
    {QAccessible::StaticText, "text"},
    {QAccessible::Link, "link"},
    {QAccessible::ProgressBar, "progress"},
    {QAccessible::Slider, "slider"},
    {QAccessible::MenuBar, "menus"},
    {QAccessible::MenuItem, "menu"},
};

const std::map<QAccessible::Event, std::string> kEvents = {
    {QAccessible::Focus, "focus"},           {QAccessible::SelectionAdd, "selected"},
    {QAccessible::SelectionRemove, "left"},  {QAccessible::SelectionWithin, "selection in"},
    {QAccessible::NameChanged, "renamed"},   {QAccessible::ObjectReorder, "other items in"},
    {QAccessible::StateChanged, "opened"},   {QAccessible::TextInserted, "typed in"},
    {QAccessible::TextRemoved, "erased in"}, {QAccessible::ValueChanged, "moved"},
};

std::string Brief(QAccessibleInterface& one)
{
    const QString name = one.text(QAccessible::Name), value = one.text(QAccessible::Value);
    const auto role = kRoles.find(one.role());
    return (role == kRoles.end() ? "other" : role->second) + " \"" + name.toStdString() + "\"" +
           (value.isEmpty() ? "" : " = " + value.toStdString());
}

// A window with all that is in it, such as: list "Icons" [item "Ada" selected focused | item "Bo"].
std::string Walk(QAccessibleInterface& one)
{
    const QAccessible::State state = one.state();
    std::string text = Brief(one);
    for (const auto& [is, word] : {std::pair(state.selected, " selected"),
                                   {state.focused, " focused"},
                                   {state.expanded, " open"},
                                   {state.collapsed, " closed"},
                                   {state.offscreen, " out of sight"},
                                   {state.disabled, " disabled"}})
        text += is ? word : "";
    for (int i = 0; i < one.childCount(); ++i) {
        QAccessibleInterface* const pChild = one.child(i);
        EXPECT_EQ(&one, pChild->parent());
        EXPECT_EQ(i, one.indexOfChild(pChild));
        text += (i == 0 ? " [" : " | ") + Walk(*pChild);
    }
    return one.childCount() == 0 ? text : text + "]";
}

// Shows names; each that is asked for is counted.
class CNames : public CListCtrl
{
public:
    std::vector<std::string> m_names;
    int m_nAsked = 0;

protected:
    afx_msg void OnGetDispInfo(NMHDR* pHeader, LRESULT* pResult)
    {
        auto& info = *reinterpret_cast<NMLVDISPINFO*>(pHeader);
        info.item.pszText = m_names[static_cast<std::size_t>(info.item.iItem) % m_names.size()].data();
        ++m_nAsked;
        *pResult = 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CNames, CListCtrl)
    ON_NOTIFY_REFLECT(LVN_GETDISPINFO, OnGetDispInfo)
END_MESSAGE_MAP()

class AccessibleTest : public DesktopTest
{
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        m_desktop->HearAccessibility([this](QAccessibleEvent& event) { Hear(event); });
    }
    void TearDown() override
    {
        m_list.DestroyWindow();
        m_tree.DestroyWindow();
        m_field.DestroyWindow();
        DesktopTest::TearDown();
    }

    void ShowList(std::vector<std::string> names)
    {
        m_list.m_names = std::move(names);
        ASSERT_TRUE(m_list.Create(WS_CHILD | WS_VISIBLE | LVS_EDITLABELS, CRect(0, 0, 300, 110), &*m_probe, 1));
        SetAccessibleName(m_list.m_hWnd, "Icons");
        m_list.SetItemCount(static_cast<int>(m_list.m_names.size()));
        m_list.SetFocus();
        Settle();
        m_heard.clear();
    }

    void Hear(QAccessibleEvent& event)
    {
        const auto it = kEvents.find(event.type());
        QAccessibleInterface* const pAbout = event.accessibleInterface();
        if (it != kEvents.end() && pAbout)
            m_heard += (m_heard.empty() ? "" : "; ") + it->second + " " + Brief(*pAbout);
    }

    QAccessibleInterface& Top() { return *QAccessible::queryAccessibleInterface(&Widget()); }
    std::string Seen() { return Walk(*Top().child(0)); }
    std::string Told()
    {
        Settle();
        return std::exchange(m_heard, {});
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&Widget(), key, modifiers);
        Settle();
    }
    void Act(QAccessibleInterface& one, const QString& action)
    {
        EXPECT_TRUE(one.actionInterface()->actionNames().contains(action));
        one.actionInterface()->doAction(action);
        Settle();
    }

    std::string m_heard; // since it was last taken
    CNames m_list;
    CTreeCtrl m_tree;
    CEdit m_field;
};

} // namespace

TEST_F(AccessibleTest, AListTellsItsRowsWhatIsSelectedAndWhereTheFocusIs)
{
    ShowList({"Ada", "Bo", "Cy"});
    Press(Qt::Key_Home);
    Press(Qt::Key_Right);
    EXPECT_EQ("list \"Icons\" [item \"Ada\" | item \"Bo\" selected focused | item \"Cy\"]", Seen());
    EXPECT_EQ("selection in list \"Icons\"; selected item \"Ada\"; focus item \"Ada\"; selection in list \"Icons\"; "
              "left item \"Ada\"; selected item \"Bo\"; focus item \"Bo\"",
              Told());
    EXPECT_EQ("item \"Bo\"", Brief(*Top().focusChild()));

    QAccessibleInterface& list = *Top().child(0);
    const QRect cy = list.child(2)->rect();
    EXPECT_EQ("item \"Cy\"", Brief(*list.childAt(cy.center().x(), cy.center().y())));
    Act(*list.child(2), QAccessibleActionInterface::toggleAction());
    Act(*list.child(0), QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ("list \"Icons\" [item \"Ada\" focused | item \"Bo\" selected | item \"Cy\" selected]", Seen());

    m_list.m_names = {"Ada", "Dee"};
    m_list.SetItemCount(2);
    EXPECT_FALSE(list.child(2)) << "it went with its row";
    EXPECT_EQ("list \"Icons\" [item \"Ada\" focused | item \"Dee\" selected]", Seen());
    EXPECT_NE(std::string::npos, Told().find("other items in list \"Icons\""));
}

TEST_F(AccessibleTest, AMillionRowsCostNothingUntilSomebodyAsks)
{
    ShowList({"Ada", "Bo"});
    m_list.SetItemCount(1'000'000);
    Press(Qt::Key_Home);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Home);
    Told();
    const int nAsked = std::exchange(m_list.m_nAsked, 0);
    EXPECT_LT(nAsked, 200) << "for what is in sight";

    QAccessibleInterface& list = *Top().child(0);
    EXPECT_EQ(1'000'000, list.childCount());
    EXPECT_TRUE(list.child(999'999)->state().offscreen);
    EXPECT_EQ(0, m_list.m_nAsked);
    EXPECT_EQ("item \"Bo\"", Brief(*list.child(999'999)));
    EXPECT_EQ(1, m_list.m_nAsked);

    Press(Qt::Key_End, Qt::ShiftModifier);
    const std::string told = Told();
    EXPECT_LT(told.size(), 2000u) << "many rows are told of as one change";
    EXPECT_NE(std::string::npos, told.find("selection in list")) << told;
}

TEST_F(AccessibleTest, ATreeTellsWhatIsOpenAndIsOpenedByIt)
{
    ASSERT_TRUE(
        m_tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_LINESATROOT, CRect(0, 0, 200, 110), &*m_probe, 1));
    const HTREEITEM hAda = m_tree.InsertItem("Ada");
    m_tree.InsertItem("Walk", hAda);
    m_tree.InsertItem("Bo");
    SetAccessibleName(m_tree.m_hWnd, "Folders");
    m_tree.SetFocus();
    Told();
    EXPECT_EQ("tree \"Folders\" [branch \"Ada\" selected focused closed | branch \"Bo\"]", Seen());

    Press(Qt::Key_Right);
    EXPECT_EQ("other items in tree \"Folders\"; opened branch \"Ada\"", Told());
    Press(Qt::Key_Down);
    EXPECT_EQ("tree \"Folders\" [branch \"Ada\" open [branch \"Walk\" selected focused] | branch \"Bo\"]", Seen());
    EXPECT_EQ("selection in tree \"Folders\"; left branch \"Ada\"; selected branch \"Walk\"; focus branch \"Walk\"",
              Told());

    Act(*Top().child(0)->child(0), QAccessibleActionInterface::pressAction());
    EXPECT_EQ("tree \"Folders\" [branch \"Ada\" selected focused closed | branch \"Bo\"]", Seen());
    m_tree.SetItemText(hAda, "Adam");
    EXPECT_NE(std::string::npos, Told().find("renamed branch \"Adam\""));
}

TEST_F(AccessibleTest, AFieldTellsItsTextAndCaretAndTakesBoth)
{
    ASSERT_TRUE(m_field.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 150, 30), &*m_probe, 1));
    SetAccessibleName(m_field.m_hWnd, "Delay");
    m_field.SetFocus();
    Told();
    QTest::keyClicks(&Widget(), "a1");
    EXPECT_EQ("typed in field \"Delay\" = a1", Told());
    EXPECT_EQ("window \"Probe\" [field \"Delay\" = a1 focused]", Walk(Top()));

    m_field.SetWindowText("é😀b");
    QAccessibleInterface& field = *Top().child(0);
    QAccessibleTextInterface& text = *field.textInterface();
    m_field.SetSel(6, 2); // bytes: the emoji, the caret before it
    int start = 0, end = 0;
    text.selection(0, &start, &end);
    EXPECT_EQ("1 3 1", std::to_string(start) + " " + std::to_string(end) + " " + std::to_string(text.cursorPosition()));
    EXPECT_EQ("😀", text.text(start, end).toStdString());
    EXPECT_EQ(1, text.offsetAtPoint(text.characterRect(1).center()));

    text.setSelection(0, 0, 1);
    field.editableTextInterface()->replaceText(3, 4, "cd");
    Settle();
    EXPECT_EQ("é😀cd", field.text(QAccessible::Value).toStdString());
    Told();
    Press(Qt::Key_Backspace);
    EXPECT_EQ("erased in field \"Delay\" = é😀c", Told());
}

TEST(AccessibleEditorTest, EveryPartOfTheWindowSaysWhatItIs)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("Cast/Ada"));
    const editor::QtPictureReader reader;
    qtdesktop::QtDesktop desktop;
    editor::EditorApp editor(reader, {.size = {800, 500}, .onClosed = {}});
    ASSERT_EQ("", editor.OpenFolder(folder.filePath("Cast").toStdString()));
    editor.WaitUntilSettled();
    QWidget& widget = *desktop.FindWidget(editor.GetMainWindow());
    QAccessibleInterface& top = *QAccessible::queryAccessibleInterface(&widget);
    const auto shows = [&top](const std::string& part) {
        const std::string seen = Walk(top);
        return seen.find(part) != seen.npos ? "" : "no " + part + " in " + seen;
    };
    EXPECT_EQ("", shows("window \"Cast - Views\" [menus \"Menus\" [menu \"File\" | menu \"Edit\""));
    EXPECT_EQ("", shows("button \"Undo (Ctrl+Z): nothing has been done yet\" disabled"));
    EXPECT_EQ("", shows("tools \"Path\" [text \"Cast\"]"));
    EXPECT_EQ("", shows("tree \"Library\" [branch \"Cast\" selected open [branch \"Ada\"]]"));
    EXPECT_EQ("", shows("[button \"Icons\" | button \"Thumbnails\" | list \"Icons\" focused [item \"Ada\"]]"));

    QTest::keyClick(&widget, Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    editor.WaitUntilSettled();
    EXPECT_EQ("", shows("field \"New folder\" = New folder focused"));
    QTest::keyClick(&widget, Qt::Key_Escape);
    QTest::keyClick(&widget, Qt::Key_L, Qt::ControlModifier);
    editor.WaitUntilSettled();
    EXPECT_EQ("", shows("tools \"Path\" [field \"Path\" = " + folder.filePath("Cast").toStdString() + " focused]"));
    QTest::keyClick(&widget, Qt::Key_Escape);
    QTest::keyClick(&widget, Qt::Key_F10);
    editor.WaitUntilSettled();
    EXPECT_EQ("", shows("menu \"File\" focused"));
}
