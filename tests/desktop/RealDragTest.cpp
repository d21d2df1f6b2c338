// Drags to a program of another kind.
#include "tests/desktop/XServerTest.h"

namespace
{

using RealDragTest = XServerTest;

TEST_F(RealDragTest, AProgramOfAnotherKindIsToCopyUnlessTheUserSaysOtherwise)
{
    const QPoint from(150, 150), to(800, 150);
    Program left, right;
    ASSERT_TRUE(Start(left, ACTOR_PROGRAM, {"left", "100", "ffffff"}));
    ASSERT_TRUE(Start(right, ACTOR_PROGRAM, {"right", "700", "ffffff", "foreign"}));
    ASSERT_NE("", FindWindow("left"));
    ASSERT_NE("", FindWindow("right"));
    left.Tell("drag");
    Drag(from, to);
    EXPECT_EQ("is to copy", right.Await("is"));
    EXPECT_EQ("dragged copy", left.Await("dragged"));
    for (const char* pszShift :
         {"keydown Shift_L", "mousemove 150 150 mousedown 1 sleep 0.1 mousemove 158 150 sleep 0.1 "
                             "mousemove 190 150 sleep 0.1 keydown Shift_L"}) {
        left.Tell("drag");
        XDo(pszShift);
        Drag(from, to);
        XDo("keyup Shift_L");
        EXPECT_EQ("is to move", right.Await("is")) << pszShift;
        EXPECT_EQ("dragged copy", left.Await("dragged")) << "and the files are left to it";
    }
    left.Tell("copy"); // though the other has named a time that is yet to come
    EXPECT_EQ("copied", left.Await("cop"));
}

} // namespace
