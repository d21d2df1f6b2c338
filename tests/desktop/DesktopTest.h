// A window of the toolkit on Qt's desktop, driven by events that come in where the window system's come in.
#pragma once

#include "QtDesktop/QtDesktop.h"
#include "tests/desktop/ProbeWnd.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>

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
