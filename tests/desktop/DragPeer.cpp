// A program with one window, to be dragged from and dropped on, and copied from. Says what happens to it,
// a line at a time.
//
// Usage: drag_peer NAME X [MODE]. Modes: "refuse" says so at the drop; "hold" stays inside a drop until a line comes
// in; "vanish" destroys its window at the drop; "forget" deletes what it drags once that has moved; "foreign" is a
// program of another kind, which does what is proposed.
#include "QtDesktop/QtDesktop.h"
#include "Toolkit/exchange/DataSource.h"
#include "Toolkit/exchange/DropTarget.h"
#include "Toolkit/message/TaskInbox.h"

#include <QApplication>
#include <QDropEvent>
#include <QWidget>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iostream>
#include <string>
#include <xcb/xcb.h>

namespace
{

const CLIPFORMAT kAtoms = RegisterClipboardFormat("application/x-atoms");

void Say(const std::string& line)
{
    std::cout << line << std::endl;
}

std::string Name(DROPEFFECT effect)
{
    return effect == DROPEFFECT_MOVE ? "move" : effect == DROPEFFECT_COPY ? "copy" : "none";
}

std::string Take(HGLOBAL hMem)
{
    const toolkit::GlobalLocker<char> bytes(hMem);
    return bytes.Get() ? std::string(bytes.Get(), GlobalSize(hMem)) : "nothing";
}

std::unique_ptr<COleDataSource> Offer(const std::string& text)
{
    const HGLOBAL hMem = GlobalAlloc(GMEM_MOVEABLE, text.size());
    std::memcpy(toolkit::GlobalLocker<char>(hMem).Get(), text.data(), text.size());
    auto pSource = std::make_unique<COleDataSource>();
    pSource->CacheGlobalData(kAtoms, hMem);
    return pSource;
}

class PeerTarget : public COleDropTarget
{
public:
    explicit PeerTarget(std::string mode) : m_mode(std::move(mode)) {}

    std::unique_ptr<COleDataSource> source; // what the program itself drags

    DROPEFFECT OnDragOver(CWnd*, COleDataObject* pData, DWORD keys, CPoint) override
    {
        if (m_mode == "forget")
            source.reset();
        if (!pData->IsDataAvailable(kAtoms))
            return DROPEFFECT_NONE;
        return keys & MK_CONTROL ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
    }

    BOOL OnDrop(CWnd* pWnd, COleDataObject* pData, DROPEFFECT effect, CPoint) override
    {
        Say("drop " + Name(effect) + " " + Take(pData->GetGlobalData(kAtoms)));
        std::string line;
        if (m_mode == "hold")
            std::getline(std::cin, line);
        if (m_mode == "vanish") {
            pWnd->DestroyWindow();
            toolkit::PostTask([] { Say("without a window"); });
        }
        return m_mode != "refuse";
    }

private:
    const std::string m_mode;
};

class PeerWnd : public CWnd
{
public:
    PeerWnd(std::string name, PeerTarget& target) : m_name(std::move(name)), m_target(target) {}

    bool Show(int x)
    {
        return CreateEx(0, "", m_name.c_str(), WS_OVERLAPPED | WS_VISIBLE, CRect(x, 50, x + 200, 250), nullptr, 0);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_MOUSEMOVE && (wParam & MK_LBUTTON))
            Drag();
        else if (message == WM_CHAR && wParam == 'c')
            Copy();
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    void Drag()
    {
        m_target.source = Offer("from " + m_name);
        Say("dragged " + Name(m_target.source->DoDragDrop(DROPEFFECT_COPY | DROPEFFECT_MOVE)));
    }

    void Copy()
    {
        Offer("from " + m_name).release()->SetClipboard();
        Say("copied");
    }

    const std::string m_name;
    PeerTarget& m_target;
};

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

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    qtdesktop::QtDesktop desktop;
    desktop.SetDropPatience(2000);
    std::unique_ptr<ForeignWnd> foreign;
    if (argc > 3 && std::string(argv[3]) == "foreign") {
        foreign = std::make_unique<ForeignWnd>(argv[1], std::atoi(argv[2]));
        Say("ready");
        return QApplication::exec();
    }
    PeerTarget target(argc > 3 ? argv[3] : "");
    PeerWnd window(argv[1], target);
    if (!window.Show(std::atoi(argv[2])) || !target.Register(&window))
        return 1;
    Say("ready");
    return QApplication::exec();
}
