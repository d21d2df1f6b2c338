#include "tests/support/DesktopTest.h"

#include "Toolkit/graphics/Gdi.h"

DesktopTest::DesktopTest() : m_counts(toolkit::CountWindows()), m_nGdiObjects(toolkit::CountGdiObjects()) {}

DesktopTest::~DesktopTest()
{
    const toolkit::WindowCounts counts = toolkit::CountWindows();
    EXPECT_EQ(m_counts.windows, counts.windows) << "windows left alive";
    EXPECT_EQ(m_counts.timers, counts.timers) << "timers left alive";
    EXPECT_EQ(m_counts.posted, counts.posted) << "messages left in the queue";
    EXPECT_EQ(m_nGdiObjects, toolkit::CountGdiObjects()) << "drawing objects left alive";
}
