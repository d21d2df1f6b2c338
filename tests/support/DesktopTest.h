// The fixture of every test that shows windows: a desktop without a screen, and a check that nothing is left.
#pragma once

#include "Toolkit/headless/HeadlessDesktop.h"
#include "tests/support/Ledger.h"

#include <gtest/gtest.h>

// At its end, after the members of the derived fixture have gone, the test fails for every window, timer, posted
// message, drawing object, menu, block of global memory and open file that is alive and was not at the start. The
// clipboard is emptied before.
class DesktopTest : public testing::Test
{
protected:
    DesktopTest();
    ~DesktopTest() override;

    void Key(UINT vkey, toolkit::Modifiers modifiers = {});
    static CRect ClientOf(HWND hWnd);
    static CRect PlaceOnScreen(HWND hWnd);

    static constexpr toolkit::Modifiers kShift{true, false, false}, kControl{false, true, false},
        kBoth{true, true, false}, kAlt{false, false, true};
    toolkit::HeadlessDesktop desktop;

private:
    const toolkit::WindowCounts m_counts;
    const int m_nGdiObjects, m_nMenus, m_nBlocks, m_nFiles;
};
