#include "tests/support/DesktopTest.h"

#include "Toolkit/base/Files.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/menu/Menu.h"
#include "Toolkit/run/Run.h"
#include "Toolkit/window/WindowApi.h"

DesktopTest::DesktopTest()
    : m_counts(toolkit::CountWindows()),
      m_nGdiObjects(toolkit::CountGdiObjects()),
      m_nMenus(toolkit::CountMenus()),
      m_nBlocks(toolkit::CountGlobalBlocks()),
      m_nFiles(toolkit::CountOpenFiles())
{}

DesktopTest::~DesktopTest()
{
    desktop.TakeClipboard({});
    const toolkit::WindowCounts counts = toolkit::CountWindows();
    EXPECT_EQ(m_counts.windows, counts.windows) << "windows left alive";
    EXPECT_EQ(m_counts.timers, counts.timers) << "timers left alive";
    EXPECT_EQ(m_counts.posted, counts.posted) << "messages left in the queue";
    EXPECT_EQ(m_nGdiObjects, toolkit::CountGdiObjects()) << "drawing objects left alive";
    EXPECT_EQ(m_nMenus, toolkit::CountMenus()) << "menus left alive";
    EXPECT_EQ(m_nBlocks, toolkit::CountGlobalBlocks()) << "blocks of memory left alive";
    EXPECT_EQ(m_nFiles, toolkit::CountOpenFiles()) << "files left open";
}

void DesktopTest::Key(UINT vkey, toolkit::Modifiers modifiers)
{
    desktop.Hold(modifiers);
    desktop.Key(vkey);
    desktop.Hold({});
}

CRect DesktopTest::ClientOf(HWND hWnd)
{
    CRect rect;
    ::GetClientRect(hWnd, &rect);
    return rect;
}

CRect DesktopTest::PlaceOnScreen(HWND hWnd)
{
    CRect rect;
    ::GetWindowRect(hWnd, &rect);
    return rect;
}
