#include "QtDesktop/QtMenu.h"

#include "Toolkit/message/Dispatch.h"
#include "Toolkit/message/Messages.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QWindow>
#include <algorithm>

namespace qtdesktop
{
namespace
{

QPoint ScreenPoint(const QMouseEvent& event)
{
    return event.globalPosition().toPoint();
}

// Asks the menu's owner about what goes beyond the menu, and ends it when the owner has another use for it.
class WaysOut : public QObject
{
public:
    WaysOut(QMenu& top, HWND hOwner) : m_top(top), m_hOwner(hOwner) {}

protected:
    bool eventFilter(QObject* pMenu, QEvent* pEvent) override
    {
        switch (pEvent->type()) {
        case QEvent::KeyPress:
            return LeavesByKey(static_cast<QMenu&>(*pMenu), static_cast<QKeyEvent*>(pEvent)->key());
        case QEvent::MouseMove:
            return LeavesAt(0, ScreenPoint(*static_cast<QMouseEvent*>(pEvent)));
        case QEvent::MouseButtonPress:
            return LeavesAt(VK_LBUTTON, ScreenPoint(*static_cast<QMouseEvent*>(pEvent)));
        default:
            return false;
        }
    }

private:
    bool LeavesByKey(const QMenu& menu, int key)
    {
        const bool bOpensMenu = menu.activeAction() && menu.activeAction()->menu();
        if (key == Qt::Key_Left && &menu == &m_top)
            return Ask(VK_LEFT, {});
        return key == Qt::Key_Right && !bOpensMenu && Ask(VK_RIGHT, {});
    }

    bool LeavesAt(UINT vkey, QPoint at)
    {
        for (const QWidget* pMenu = QApplication::activePopupWidget(); pMenu; pMenu = pMenu->parentWidget())
            if (pMenu->windowType() == Qt::Popup && pMenu->geometry().contains(at))
                return false;
        return Ask(vkey, at);
    }

    bool Ask(UINT vkey, QPoint at)
    {
        if (!SendMessage(m_hOwner, WM_NEXTMENU, vkey, MAKELPARAM(at.x(), at.y())))
            return false;
        m_top.close();
        return true;
    }

    QMenu& m_top;
    const HWND m_hOwner;
};

bool IsOnWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

// There a menu touches its window, or is none.
QPoint Reachable(QPoint at, const QWidget* pOwner)
{
    if (!pOwner || !IsOnWayland())
        return at;
    const QRect window(pOwner->mapToGlobal(QPoint()), pOwner->size());
    return {std::clamp(at.x(), window.left(), window.right()), std::clamp(at.y(), window.top(), window.bottom())};
}

// A popup that takes all input for itself is to Wayland an answer to a press that is still the last one: any other it
// closes at once, or shows where it likes. There a menu is one that takes nothing, then, and Qt hands it what comes to
// the program, which is left when the user goes to another.
void TakeNoInputForItself(QMenu& menu)
{
    menu.winId(); // there is a window from here on
    QWindow& window = *menu.windowHandle();
    window.setFlags((window.flags() & ~Qt::WindowType_Mask) | Qt::ToolTip);
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, &menu, [&menu](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive)
            menu.close();
    });
}

void AddItem(QMenu& menu, const toolkit::MenuItem& item, QObject& filter);

void AddItems(QMenu& menu, const std::vector<toolkit::MenuItem>& items, QObject& filter)
{
    menu.setToolTipsVisible(true);
    menu.installEventFilter(&filter);
    if (IsOnWayland())
        TakeNoInputForItself(menu);
    for (const toolkit::MenuItem& item : items)
        AddItem(menu, item, filter);
}

void AddItem(QMenu& menu, const toolkit::MenuItem& item, QObject& filter)
{
    const QString text = QString::fromStdString(item.text);
    QAction* pAction = item.separator ? menu.addSeparator()
                       : item.popup   ? menu.addMenu(text)->menuAction()
                                      : menu.addAction(text);
    pAction->setEnabled(item.enabled);
    pAction->setCheckable(item.checked);
    pAction->setChecked(item.checked);
    pAction->setData(item.command);
    pAction->setToolTip(QString::fromStdString(item.hint));
    if (item.popup)
        AddItems(*pAction->menu(), item.items, filter);
}

} // namespace

UINT TrackPopup(QWidget* pOwner, HWND hOwner, const std::vector<toolkit::MenuItem>& items, CPoint screen)
{
    // Its owner deletes the menu when it goes while the menu is open.
    const QPointer<QMenu> pMenu = new QMenu(pOwner);
    WaysOut waysOut(*pMenu, hOwner);
    AddItems(*pMenu, items, waysOut);
    const QAction* pChosen = pMenu->exec(Reachable({screen.x, screen.y}, pOwner));
    if (!pMenu)
        return 0;
    const UINT command = pChosen ? pChosen->data().toUInt() : 0;
    delete pMenu;
    return command;
}

} // namespace qtdesktop
