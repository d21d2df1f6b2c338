// A window of the toolkit on Qt's desktop, driven by events that come in where the window system's come in.
#pragma once

#include "QtDesktop/QtDesktop.h"
#include "Toolkit/window/Wnd.h"

#include <QTest>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

// Notes the messages it gets: "ldown 10,20", "key F2", "char 233".
class CProbeWnd : public CWnd
{
public:
    explicit CProbeWnd(CSize size = {200, 120});

    std::string TakeLog(); // what was noted since, in order, separated by "; "

    COLORREF m_color = RGB(255, 255, 255);               // the whole client area's, when painted
    std::function<void()> m_onApp, m_onTimer, m_onPaint; // WM_APP, WM_TIMER, after WM_PAINT
    std::optional<CSize> m_sized;                        // by the last WM_SIZE
    bool m_bCloseAsked = false;                          // WM_CLOSE came; the window stays

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    bool Note(UINT message, WPARAM wParam, LPARAM lParam);
    void Paint();

    std::vector<std::string> m_log;
};

class DesktopTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    // Runs Qt's loop until the condition holds; FALSE when it does not within ten seconds.
    static bool RunUntil(const std::function<bool()>& condition);
    static void Settle(); // until everything posted so far has been handled

    QWidget& Widget() { return *m_desktop->FindWidget(m_probe->GetSafeHwnd()); }
    QWindow* Window() { return Widget().windowHandle(); }

    std::optional<qtdesktop::QtDesktop> m_desktop;
    std::optional<CProbeWnd> m_probe;
};
