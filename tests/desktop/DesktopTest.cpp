#include "tests/desktop/DesktopTest.h"

#include "Toolkit/graphics/Gdi.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <map>
#include <utility>

namespace
{

std::string At(LPARAM lParam)
{
    return " " + std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam));
}

const std::map<UINT, const char*> kMouse = {
    {WM_MOUSEMOVE, "move"},        {WM_LBUTTONDOWN, "ldown"}, {WM_LBUTTONUP, "lup"},
    {WM_LBUTTONDBLCLK, "ldouble"}, {WM_RBUTTONDOWN, "rdown"}, {WM_RBUTTONUP, "rup"},
};

const std::map<UINT, const char*> kKeys = {
    {VK_F2, "F2"},       {VK_F5, "F5"},           {VK_TAB, "Tab"},          {VK_RETURN, "Return"},
    {VK_SHIFT, "Shift"}, {VK_CONTROL, "Control"}, {VK_ADD, "Keypad+"},      {VK_MULTIPLY, "Keypad*"},
    {VK_APPS, "Menu"},   {VK_BACK, "Backspace"},  {VK_SUBTRACT, "Keypad-"}, {VK_DELETE, "Delete"},
};

std::string KeyName(WPARAM vkey)
{
    const auto it = kKeys.find(static_cast<UINT>(vkey));
    return it != kKeys.end() ? it->second : std::string(1, static_cast<char>(vkey));
}

std::string Held(WPARAM keys)
{
    std::string held;
    if (keys & MK_SHIFT)
        held += " shift";
    if (keys & MK_CONTROL)
        held += " control";
    return held;
}

} // namespace

CProbeWnd::CProbeWnd(CSize size)
{
    CreateEx(0, "", "Probe", WS_OVERLAPPED | WS_VISIBLE, CRect(CPoint(), size), nullptr, 0);
}

std::string CProbeWnd::TakeLog()
{
    std::string log;
    for (const std::string& entry : std::exchange(m_log, {}))
        log += (log.empty() ? "" : "; ") + entry;
    return log;
}

LRESULT CProbeWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CLOSE:
        m_bCloseAsked = true;
        return 0;
    case WM_PAINT:
        Paint();
        return 0;
    case WM_SIZE:
        m_sized = CSize(LOWORD(static_cast<UINT_PTR>(lParam)), HIWORD(static_cast<UINT_PTR>(lParam)));
        break;
    case WM_APP:
        if (m_onApp)
            m_onApp();
        return 0;
    case WM_TIMER:
        if (m_onTimer)
            m_onTimer();
        return 0;
    default:
        if (Note(message, wParam, lParam))
            return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

bool CProbeWnd::Note(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (const auto it = kMouse.find(message); it != kMouse.end())
        m_log.push_back(it->second + At(lParam) + Held(wParam));
    else if (message == WM_MOUSEWHEEL)
        m_log.push_back("wheel " + std::to_string(static_cast<std::int16_t>(HIWORD(wParam))));
    else if (message == WM_KEYDOWN)
        m_log.push_back("key " + KeyName(wParam));
    else if (message == WM_CHAR)
        m_log.push_back("char " + std::to_string(wParam));
    else if (message == WM_MOUSELEAVE)
        m_log.push_back("leave");
    else
        return false;
    return true;
}

void CProbeWnd::Paint()
{
    const CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    ::FillSolidRect(dc, client, m_color);
    if (m_onPaint)
        m_onPaint();
}

void DesktopTest::SetUp()
{
    m_desktop.emplace();
    m_probe.emplace();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Widget()));
    QTest::mouseMove(Window(), {1, 1}); // wherever an earlier test left it
    Settle();
    m_probe->TakeLog();
}

void DesktopTest::TearDown()
{
    m_probe.reset();
    const toolkit::WindowCounts counts = toolkit::CountWindows();
    EXPECT_EQ(0, counts.windows + counts.timers);
    m_desktop.reset();
}

bool DesktopTest::RunUntil(const std::function<bool()>& condition)
{
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.start(10'000);
    while (!condition() && deadline.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

void DesktopTest::Settle()
{
    bool bDone = false;
    QCoreApplication::processEvents(); // what the window system has sent reaches the toolkit's queue
    toolkit::PostTask([&bDone] { bDone = true; });
    EXPECT_TRUE(RunUntil([&bDone] { return bDone; }));
    QCoreApplication::processEvents();
}
