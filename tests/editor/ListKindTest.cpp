// Icons and thumbnails take turns in one pane.
#include "tests/editor/EditorFixture.h"

#include <algorithm>

namespace
{

class ListKindTest : public EditorTest
{};

TEST_F(ListKindTest, SwitchingKeepsWhatIsShownSelectedAndFocused)
{
    for (const char* pszName : {"a.bmp", "b.bmp"})
        folder.WriteBmp(pszName, 90, 90, 0xFF102030);
    Open();
    Click("b.bmp");
    const HWND hIcons = List();
    const std::string before = Screen();
    Control('2');
    const HWND hThumbnails = List();
    EXPECT_EQ(hThumbnails, GetFocus());
    EXPECT_FALSE(IsWindowVisible(hIcons));
    EXPECT_EQ(before, Screen());
    CRect icon;
    Frame().GetList().GetItemRect(0, &icon, LVIR_ICON);
    const toolkit::Surface shown = desktop.Dump(hThumbnails);
    EXPECT_EQ(0xFF102030u, shown.At(icon.left + 24, icon.top + 24)) << "80 pixels wide, in the middle of 128";
    EXPECT_EQ(0xFFFFFFFFu, shown.At(icon.left + 23, icon.top + 24));

    editor::CPane& pane = static_cast<editor::CPane&>(*CWnd::FromHandle(GetParent(hThumbnails)));
    desktop.Click(pane.GetSafeHwnd(), pane.ChoiceRect(0).CenterPoint());
    EXPECT_EQ(hIcons, List());
    EXPECT_EQ(before, Screen());
    DoubleClick("b.bmp");
    Control('2'); // behind the picture
    EXPECT_TRUE(IsWindowVisible(Picture()));
    EXPECT_FALSE(IsWindowVisible(hThumbnails));
    Press(VK_BACK);
    EXPECT_EQ(before, Screen());
    EXPECT_EQ(hThumbnails, List());
    EXPECT_EQ(hThumbnails, GetFocus());
}

TEST_F(ListKindTest, PicturesScrolledPastAreNotRead)
{
    for (int i = 0; i < 300; ++i)
        folder.WriteBmp(std::to_string(1000 + i) + ".bmp");
    Open();
    Control('2');
    const auto first = reader.TakeReads().size();
    reader.Hold();
    for (int i = 0; i < 30; ++i)
        desktop.Key(VK_NEXT);
    reader.AllowAll();
    Press(VK_END);
    const Ledger reads = reader.TakeReads();
    EXPECT_LT(reads.size(), 2 * first) << "the pictures at the end, and those that had begun";
    EXPECT_NE(reads.end(), std::find(reads.begin(), reads.end(), "1299.bmp"));
}

} // namespace
