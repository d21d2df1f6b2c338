// The frames of a phase in the user's hand: put in order, added and taken out in the list that shows them.
#include "tests/editor/EditorFixture.h"

namespace
{

class PhaseFramesTest : public EditorTest
{
protected:
    PhaseFramesTest()
    {
        folder.Make("a.bmp b.bmp c.bmp d.bmp e.bmp Ada/x.bmp");
        folder.Write("Ada/walk.phase", kWalk);
        Open();
        Frame().MoveWindow(CRect(0, 0, 960, 720));
        DoubleClick("Ada");
        DoubleClick("walk.phase");
    }

    // A few pixels beside the middle of a frame: the gap at its left or right.
    CPoint Before(const char* pszName) { return PlaceOf(pszName) - CPoint(5, 0); }
    CPoint Behind(const char* pszName) { return PlaceOf(pszName) + CPoint(5, 0); }
    void DropAt(CPoint at) { DropOn(List(), at); }
    std::string Walk() { return folder.Read("Ada/walk.phase"); }

    static constexpr const char* kWalk = "#delay 80\na.bmp\nb.bmp\n# the turn\nc.bmp\nd.bmp\ne.bmp\n";
};

TEST_F(PhaseFramesTest, FramesDraggedBetweenOthersComeThereInTheirOrderInOneStep)
{
    EXPECT_EQ("[a.bmp b.bmp c.bmp d.bmp e.bmp]", Rows());
    Select({"d.bmp", "b.bmp"});
    Drag(List(), PlaceOf("b.bmp"), [&] { DropAt(Before("a.bmp")); });
    EXPECT_EQ("[(*b.bmp) (d.bmp) a.bmp c.bmp e.bmp]", Rows());
    EXPECT_EQ("#delay 80\nb.bmp\nd.bmp\na.bmp\n# the turn\nc.bmp\ne.bmp\n", Walk());
    Drag(List(), PlaceOf("b.bmp"), [&] { DropAt(Behind("e.bmp")); });
    EXPECT_EQ("[a.bmp c.bmp e.bmp (*b.bmp) (d.bmp)]", Rows());

    EXPECT_EQ("order of frames in \"walk.phase\"", NextUndo());
    Control('Z');
    Control('Z');
    EXPECT_EQ(kWalk, Walk());
    EXPECT_EQ("", NextUndo());
    Drag(List(), PlaceOf("c.bmp"), [&] { DropAt(Before("d.bmp")); });
    EXPECT_EQ(kWalk, Walk());
    EXPECT_EQ("", NextUndo()) << "nothing has changed its place";
    desktop.Hold({.control = true});
    Drag(List(), PlaceOf("c.bmp"), [&] { DropAt(Before("a.bmp")); });
    desktop.Hold({});
    EXPECT_EQ("[(*c.bmp) a.bmp b.bmp c.bmp d.bmp e.bmp]", Rows()) << "with Ctrl it is shown once more";
    EXPECT_EQ(Ledger(), TakeBoxes());
}

TEST_F(PhaseFramesTest, KeysMoveTheSelectedFramesOnePlaceAndTheyStaySelected)
{
    const auto move = [&](UINT vkey) {
        Key(vkey, {.shift = true, .alt = true});
        return Rows();
    };
    Select({"b.bmp", "c.bmp", "e.bmp"});
    EXPECT_EQ("[(*b.bmp) (c.bmp) a.bmp (e.bmp) d.bmp]", move(VK_LEFT));
    EXPECT_EQ("[(*b.bmp) (c.bmp) (e.bmp) a.bmp d.bmp]", move(VK_LEFT)) << "what is the first already stays";
    EXPECT_EQ("#delay 80\nb.bmp\nc.bmp\ne.bmp\na.bmp\n# the turn\nd.bmp\n", Walk());
    move(VK_LEFT);
    EXPECT_EQ("Frames one place earlier: nothing comes before them", News());
    EXPECT_EQ("[a.bmp (*b.bmp) (c.bmp) (e.bmp) d.bmp]", move(VK_RIGHT));
    EXPECT_EQ("order of frames in \"walk.phase\"", NextUndo());
    for (int i = 0; i < 3; ++i)
        Control('Z');
    EXPECT_EQ(kWalk, Walk());

    std::string lines;
    for (int i = 0; i < 300; ++i)
        lines += i % 2 ? "a.bmp\n" : "b.bmp\n";
    folder.Write("Ada/walk.phase", lines);
    desktop.Key(VK_F5);
    desktop.Key(VK_END);
    for (int i = 0; i < 150; ++i)
        move(VK_LEFT);
    const int nRow = Frame().GetList().GetFocusedRow();
    CRect row, client;
    Frame().GetList().GetItemRect(nRow, &row, LVIR_ICON);
    ::GetClientRect(List(), &client);
    EXPECT_EQ(149, nRow);
    EXPECT_TRUE(row.top >= 0 && row.bottom <= client.bottom) << "it stays in sight";
}

TEST_F(PhaseFramesTest, TheGapIsMarkedWhileADragIsOverIt)
{
    const auto marked = [&] {
        LVINSERTMARK mark{};
        SendMessage(List(), LVM_GETINSERTMARK, 0, reinterpret_cast<LPARAM>(&mark));
        return mark.iItem;
    };
    Drag(List(), PlaceOf("e.bmp"), [&] {
        EXPECT_EQ(-1, marked());
        desktop.MoveTo(List(), Before("c.bmp"));
        EXPECT_EQ(2, marked());
        desktop.MoveTo(Tree().m_hWnd, {5, 5});
        EXPECT_EQ(-1, marked());
        desktop.MoveTo(List(), Before("c.bmp"));
        desktop.Key(VK_ESCAPE);
    });
    EXPECT_EQ(-1, marked());
    EXPECT_EQ(kWalk, Walk());
}

TEST_F(PhaseFramesTest, PicturesFromElsewhereComeWhereTheyAreDropped)
{
    const TempFolder outside;
    outside.WriteBmp("far.bmp");
    const auto uri = [](const TempFolder& from, const char* pszName) { return "file://" + from.At(pszName) + "\r\n"; };
    desktop.DragIn({{"text/uri-list", uri(folder, "Ada/x.bmp")}});
    DropAt(Before("b.bmp"));
    EXPECT_EQ("[a.bmp (*x.bmp) b.bmp c.bmp d.bmp e.bmp]", Rows());
    EXPECT_EQ("new frames in \"walk.phase\"", NextUndo());
    desktop.DragIn({{"text/uri-list", uri(folder, "e.bmp") + uri(outside, "far.bmp") + uri(folder, "d.bmp")}});
    DropAt(Before("a.bmp"));
    Settle();
    EXPECT_EQ("[(*e.bmp) (d.bmp) a.bmp x.bmp b.bmp c.bmp d.bmp e.bmp]", Rows());
    EXPECT_EQ(
        Ledger({"Views: Not everything was taken: far.bmp: only pictures of the same library can be put into a phase"}),
        TakeBoxes());
    desktop.TakeClipboard({{"text/uri-list", uri(folder, "a.bmp") + uri(folder, "b.bmp")}});
    Control('V');
    EXPECT_EQ("[e.bmp d.bmp a.bmp x.bmp b.bmp c.bmp d.bmp e.bmp (*a.bmp) (b.bmp)]", Rows());
    Control('Z');
    Control('Z');
    Control('Z');
    EXPECT_EQ(kWalk, Walk());
}

TEST_F(PhaseFramesTest, FramesThatAreRemovedGoInOneStep)
{
    Select({"a.bmp", "c.bmp", "d.bmp"});
    Delete();
    EXPECT_EQ("#delay 80\nb.bmp\n# the turn\ne.bmp\n", Walk());
    EXPECT_EQ(Ledger({"Views: Remove 3 objects from the phase?"}), TakeBoxes());
    Control('Z');
    EXPECT_EQ(kWalk, Walk());
}

} // namespace
