// Drags and the clipboard between two programs.
#include "tests/desktop/XServerTest.h"

#include <list>

namespace
{

class RealDragTest : public XServerTest
{
protected:
    void SetUp() override
    {
        XServerTest::SetUp();
        if (!IsSkipped())
            StartPeer(m_left, {"left", "50"});
    }

    void StartPeer(Program& peer, const QStringList& arguments)
    {
        Start(peer, PEER_PROGRAM, arguments);
        ASSERT_EQ("ready", Line(peer));
        ASSERT_NE("", FindWindow(arguments.front()));
    }

    // The next thing that the program says; empty when it waits in vain.
    static std::string Line(QProcess& peer)
    {
        while (!peer.canReadLine())
            if (!peer.waitForReadyRead(kPatience))
                return "";
        return peer.readLine().trimmed().toStdString();
    }

    void DragTo(int x, int y) { Drag({120, 150}, {x, y}); } // from the left window

    Program m_left;
};

TEST_F(RealDragTest, ADragHasTheEffectThatTheOtherProgramConfirms)
{
    DragTo(220, 100); // on itself
    EXPECT_EQ("drop move from left", Line(m_left));
    EXPECT_EQ("dragged move", Line(m_left));
    DragTo(700, 600); // on nothing
    EXPECT_EQ("dragged none", Line(m_left));
    const std::pair<const char*, const char*> cases[] = {{"take", "move"}, {"refuse", "none"}, {"hold", "copy"}};
    std::list<Program> targets; // the latest lies on top
    for (const auto& [pszMode, pszEffect] : cases) {
        Program& right = targets.emplace_back();
        StartPeer(right, {pszMode, "600", pszMode});
        DragTo(700, 150);
        EXPECT_EQ("drop move from left", Line(right));
        EXPECT_EQ(std::string("dragged ") + pszEffect, Line(m_left));
    }
}

TEST_F(RealDragTest, AProgramOfAnotherKindIsToCopyUnlessTheUserSaysOtherwise)
{
    Program right;
    StartPeer(right, {"right", "600", "foreign"});
    DragTo(700, 150);
    EXPECT_EQ("is to copy", Line(right));
    EXPECT_EQ("dragged copy", Line(m_left));
    for (const char* pszShift :
         {"keydown Shift_L", "mousemove 120 150 mousedown 1 sleep 0.1 mousemove 128 150 sleep 0.1 "
                             "mousemove 160 150 sleep 0.1 keydown Shift_L"}) {
        XDo(pszShift);
        DragTo(700, 150);
        XDo("keyup Shift_L");
        EXPECT_EQ("is to move", Line(right)) << pszShift;
        EXPECT_EQ("dragged copy", Line(m_left)) << "and the files are left to it";
    }
    Press(FindWindow("left"), "c"); // though the other has named a time that is yet to come
    EXPECT_EQ("copied", Line(m_left));
}

TEST_F(RealDragTest, WhateverGoesUnderWayTheProgramsGoOn)
{
    Program vanishing, dying, forgetful;
    StartPeer(vanishing, {"vanishing", "600", "vanish"});
    DragTo(700, 150);
    EXPECT_EQ("drop move from left", Line(vanishing));
    EXPECT_EQ("without a window", Line(vanishing));
    EXPECT_EQ("dragged move", Line(m_left));

    StartPeer(dying, {"dying", "600", "hold"});
    DragTo(700, 150);
    EXPECT_EQ("drop move from left", Line(dying));
    dying.kill();
    EXPECT_EQ("dragged copy", Line(m_left));

    m_left.kill();
    EXPECT_TRUE(m_left.waitForFinished(kPatience));
    StartPeer(forgetful, {"forgetful", "50", "forget"});
    DragTo(220, 100);
    EXPECT_EQ("dragged none", Line(forgetful));
}

} // namespace
