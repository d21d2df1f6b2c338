// The actor in a window of Qt's desktop; what comes in a line at a time it does, what it says goes out so.
//
// Usage: actor NAME LEFT COLOUR [foreign]. Says "shown menu" and "shown box" when such a window of its own takes
// keys. A foreign one is a program of another kind, which does with a drag what is proposed.
#include "QtDesktop/QtDesktop.h"
#include "tests/desktop/Actor.h"

#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMessageBox>
#include <QSocketNotifier>
#include <QWidget>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iostream>
#include <string>
#include <unistd.h>
#include <xcb/xcb.h>

namespace
{

void Say(const std::string& line)
{
    std::cout << line << std::endl;
}

xcb_atom_t Atom(xcb_connection_t* pServer, const char* pszName)
{
    const auto cookie = xcb_intern_atom(pServer, 0, static_cast<std::uint16_t>(std::strlen(pszName)), pszName);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(pServer, cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

// Asks for what is dragged, as file managers do, at a time of their own and not the server's.
void AskAtAWrongTime(WId window)
{
    xcb_connection_t* const pServer = qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    xcb_convert_selection(pServer, static_cast<xcb_window_t>(window), Atom(pServer, "XdndSelection"),
                          Atom(pServer, "TARGETS"), Atom(pServer, "SOME_PROPERTY"),
                          static_cast<xcb_timestamp_t>(std::time(nullptr)));
    xcb_flush(pServer);
}

class ForeignWnd : public QWidget
{
public:
    ForeignWnd(const char* pszName, int x)
    {
        setWindowTitle(pszName);
        setGeometry(x, 50, 200, 200);
        setAcceptDrops(true);
        show();
    }

protected:
    void dragEnterEvent(QDragEnterEvent* pEvent) override { pEvent->acceptProposedAction(); }
    void dropEvent(QDropEvent* pEvent) override
    {
        AskAtAWrongTime(winId());
        const bool bMayMove = pEvent->possibleActions().testFlag(Qt::MoveAction);
        Say(pEvent->proposedAction() == Qt::MoveAction ? "is to move" : bMayMove ? "may move" : "is to copy");
        pEvent->acceptProposedAction();
    }
};

// Tells when the user may answer what the program asks.
class Watcher : public QObject
{
public:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override
    {
        const bool bMenu = pEvent->type() == QEvent::Paint && qobject_cast<QMenu*>(pObject);
        if (bMenu && !pObject->property("told").toBool()) {
            pObject->setProperty("told", true);
            Say("shown menu");
        }
        if (pEvent->type() == QEvent::WindowActivate && qobject_cast<QMessageBox*>(pObject))
            Say("shown box");
        return false;
    }
};

// Hands each line that has come to the actor.
void ReadCommands(Actor& actor, std::string& unread)
{
    char bytes[256];
    const ssize_t nRead = read(STDIN_FILENO, bytes, sizeof bytes);
    if (nRead <= 0)
        return QApplication::exit(1);
    unread.append(bytes, static_cast<std::size_t>(nRead));
    for (auto end = unread.find('\n'); end != std::string::npos; end = unread.find('\n')) {
        actor.Do(unread.substr(0, end));
        unread.erase(0, end + 1);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    if (argc < 4)
        return 2;
    const std::string name = argv[1];
    const int left = std::atoi(argv[2]);
    qtdesktop::QtDesktop desktop;
    desktop.SetDropPatience(2000);
    if (argc > 4) {
        const ForeignWnd foreign(argv[1], left);
        Say("ready");
        return QApplication::exec();
    }
    QApplication::setQuitOnLastWindowClosed(false);
    Watcher watcher;
    qApp->installEventFilter(&watcher);
    Actor actor(name, CRect(CPoint(left, 100), CSize(200, 120)),
                static_cast<COLORREF>(std::strtoul(argv[3], nullptr, 16)), Say);
    std::string unread;
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&] { ReadCommands(actor, unread); });
    Say("ready");
    return QApplication::exec();
}
