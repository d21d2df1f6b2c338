// What a tree shows and where: rows, parts, pixels, scrolling.
#include "Toolkit/graphics/SysColors.h"
#include "tests/toolkit/TreeControlFixture.h"

using namespace toolkit;

namespace
{

TEST_F(TreeControlTest, EveryPartIsHitWhereItIsPainted)
{
    Fill("a [b (c)] d");
    const Surface picture = desktop.Dump(tree.m_hWnd);
    const CRect label = LabelOf("b");
    const auto hit = [this](CPoint at) {
        UINT flags = 0;
        const std::string name = tree.NameOf(tree.HitTest(at, &flags));
        return name + " " + std::to_string(flags);
    };
    const auto part = [](const char* pszName, UINT flag) { return pszName + (" " + std::to_string(flag)); };
    const auto color = [&](CPoint at) { return ToColor(picture.At(at.x, at.y)); };
    EXPECT_EQ(part("b", TVHT_ONITEMICON), hit(IconOf("b")));
    EXPECT_EQ(RGB(255, 0, 0), color(IconOf("b")));
    EXPECT_EQ(part("b", TVHT_ONITEMBUTTON), hit(ButtonOf("b")));
    EXPECT_EQ(GetSysColor(COLOR_3DDKSHADOW), color(ButtonOf("b")));
    EXPECT_EQ(part("b", TVHT_ONITEMINDENT), hit(ButtonOf("b") - CPoint(20, 0)));
    EXPECT_EQ(part("d", TVHT_ONITEMINDENT), hit(ButtonOf("d"))); // no children, no button
    EXPECT_NE(GetSysColor(COLOR_3DDKSHADOW), color(ButtonOf("d")));

    EXPECT_EQ(part("b", TVHT_ONITEMLABEL), hit({label.right - 1, label.top}));
    EXPECT_EQ(part("b", TVHT_ONITEMRIGHT), hit({label.right, label.bottom - 1}));
    EXPECT_EQ(part("-", TVHT_NOWHERE), hit({5, 150}));

    tree.SelectItem((*this)["b"]);
    const Surface selected = desktop.Dump(tree.m_hWnd);
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), ToColor(selected.At(label.right - 2, label.CenterPoint().y)));
    EXPECT_EQ(RGB(255, 255, 255), ToColor(selected.At(label.right, label.CenterPoint().y)));
    EXPECT_EQ(RGB(0, 255, 0), ToColor(selected.At(IconOf("b").x, IconOf("b").y))); // the picture for a selected item
    tree.SetItemState((*this)["b"], TVIS_BOLD, TVIS_BOLD);
    EXPECT_GT(LabelOf("b").right, label.right);
    EXPECT_EQ(TVIS_BOLD | TVIS_SELECTED, tree.GetItemState((*this)["b"], ~0u));
}

TEST_F(TreeControlTest, WhatIsPressedOrWouldTakeADropStandsOutAlone)
{
    Fill("a b c");
    tree.SelectItem((*this)["a"]);
    tree.SetFocus();
    const auto ground = [this](const char* name) {
        const CRect label = LabelOf(name);
        return ToColor(desktop.Dump(tree.m_hWnd).At(label.left + 1, label.CenterPoint().y));
    };
    const COLORREF full = GetSysColor(COLOR_HIGHLIGHT), grey = GetSysColor(COLOR_BTNFACE), none = RGB(255, 255, 255);
    const auto grounds = [&] { return std::vector({ground("a"), ground("b"), ground("c")}); };
    EXPECT_EQ(std::vector({full, none, none}), grounds());
    desktop.Press(tree.m_hWnd, LabelOf("b").CenterPoint());
    EXPECT_EQ(std::vector({grey, full, none}), grounds());
    Key(VK_ESCAPE);
    EXPECT_EQ(std::vector({full, none, none}), grounds());
    desktop.Release(tree.m_hWnd, LabelOf("b").CenterPoint());

    tree.SetItemState((*this)["c"], TVIS_DROPHILITED, TVIS_DROPHILITED);
    EXPECT_EQ(std::vector({grey, none, full}), grounds());
    tree.DeleteItem((*this)["c"]);
    EXPECT_EQ(full, ground("a"));
}

TEST_F(TreeControlTest, WheelAndBarScrollByRowsAndTheTopRowStaysInPlace)
{
    tree.MoveWindow(CRect(0, 0, 0, 0));
    Fill("a (x) b c d e f g h i j k l m n o p");
    tree.SelectItem((*this)["m"]);
    tree.MoveWindow(CRect(0, 0, 300, 200));
    EXPECT_EQ("m", InRow(9)); // in sight as soon as there is room
    CRect rect;
    EXPECT_FALSE(tree.GetItemRect((*this)["x"], &rect, FALSE));
    EXPECT_TRUE(tree.GetItemRect((*this)["a"], &rect, FALSE));
    EXPECT_EQ(CRect(0, -60, 286, -40), rect); // beside the scroll bar
    EXPECT_TRUE(tree.EnsureVisible((*this)["a"]));
    EXPECT_FALSE(tree.EnsureVisible((*this)["a"]));
    tree.SetFocus();
    desktop.Wheel(tree.m_hWnd, {5, 5}, -1);
    EXPECT_EQ("d", InRow(0));
    tree.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ("e", InRow(0));
    const HTREEITEM hFirst = tree.Add("0", TVI_ROOT, TVI_FIRST);
    tree.Add("x", hFirst);
    tree.Expand(hFirst, TVE_EXPAND);
    EXPECT_EQ("e", InRow(0)); // what is above does not matter
    tree.DeleteItem((*this)["e"]);
    EXPECT_EQ("f", InRow(0));
    tree.SendMessage(WM_VSCROLL, SB_PAGEUP);
    tree.SendMessage(WM_VSCROLL, SB_PAGEUP);
    EXPECT_EQ("0", InRow(0));
    tree.Add("first", TVI_ROOT, TVI_FIRST);
    EXPECT_EQ("first", InRow(0)); // at the top the first row stays the first
    tree.DeleteAllItems();
    EXPECT_EQ(0u, tree.GetStyle() & WS_VSCROLL);

    Fill("0 1 2 a [b c d e f g h i j k l m n] o p q r s t u v w x");
    tree.Select((*this)["d"], TVGN_FIRSTVISIBLE);
    tree.Expand((*this)["a"], TVE_COLLAPSE); // stays in sight, in the place of what it held
    EXPECT_EQ("a", InRow(0));
}

TEST_F(TreeControlTest, LongLabelsScrollSidewaysAndTheBarGoesWithThem)
{
    const std::string name(60, 'm');
    Fill("a [" + name + "] b");
    EXPECT_EQ(WS_HSCROLL, tree.GetStyle() & (WS_HSCROLL | WS_VSCROLL));
    const int left = LabelOf(name).left;
    tree.SendMessage(WM_HSCROLL, SB_LINEDOWN);
    EXPECT_EQ(left - 20, LabelOf(name).left);
    desktop.Run();
    tree.SelectItem((*this)["b"]); // comes into sight from its left end
    EXPECT_EQ("b", tree.NameOf(tree.HitTest({LabelOf("b").left, LabelOf("b").top})));
    EXPECT_LE(0, ButtonOf("b").x - 9);
    tree.Expand((*this)["a"], TVE_COLLAPSE);
    desktop.Run();
    EXPECT_EQ(0u, tree.GetStyle() & WS_HSCROLL);
}

} // namespace
