// A window of the toolkit on Qt's desktop, driven by events that come in where the window system's come in.
#pragma once

#include "QtDesktop/QtDesktop.h"
#include "Toolkit/window/Wnd.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <utility>

// Notes the messages it gets: "ldown 10,20", "key F2", "char 233", "size 200,120". Asked to close, it stays.
class CProbeWnd : public CWnd
{
public:
    explicit CProbeWnd(CSize size = {200, 120});

    std::string TakeLog(); // what was noted since, in order, separated by "; "

    COLORREF m_color = RGB(255, 255, 255);         // the whole client area's, when painted
    std::map<UINT, std::function<void()>> m_after; // what else is to be done after a message

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void Paint();

    std::string m_log;
};

// Has the user act on the next menu or message box (by Qt's class) when it is shown and Qt's loop runs again.
template <class Widget>
class WhenShown : public QObject
{
public:
    explicit WhenShown(std::function<void(Widget&)> act) : m_act(std::move(act)) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* pObject, QEvent* pEvent) override
    {
        const QPointer<Widget> pShown = qobject_cast<Widget*>(pObject);
        if (pShown && pEvent->type() == QEvent::Show && m_act)
            QTimer::singleShot(0, this, [pShown, act = std::exchange(m_act, nullptr)] {
                if (pShown)
                    act(*pShown);
            });
        return false;
    }

private:
    std::function<void(Widget&)> m_act;
};

class DesktopTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    // Runs Qt's loop until the condition holds; FALSE when it does not within ten seconds.
    static bool RunUntil(const std::function<bool()>& condition);
    static void Settle(); // until everything posted so far has been handled
    std::string Heard();  // what the window has noted when everything is settled

    QWidget& Widget() { return *m_desktop->FindWidget(m_probe->GetSafeHwnd()); }
    QWindow* Window() { return Widget().windowHandle(); }

    std::optional<qtdesktop::QtDesktop> m_desktop;
    std::optional<CProbeWnd> m_probe;
};
