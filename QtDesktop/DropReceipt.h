// How a program learns what another one has made of its drag. What the window system says of a drop is known too early
// to be true: a target that refuses, or dies, looks like one that has taken all.
//
// The dragged data carries the address of a socket under a name that nobody can guess. A target of this kind writes
// that it begins with the drop, and then what became of it; it is the only one to be believed that something was moved.
#pragma once

#include "Toolkit/window/DropEffect.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QSocketNotifier>
#include <memory>
#include <optional>

namespace qtdesktop
{

inline constexpr char kReceiptKind[] = "application/x-toolkit-drop-receipt"; // MIME type of the address

// A file descriptor, closed at its end; -1 is none.
class Socket
{
public:
    explicit Socket(int fd = -1) : m_fd(fd) {}
    ~Socket();
    Socket(Socket&& other) noexcept;
    Socket& operator=(Socket&& other) noexcept;

    explicit operator bool() const { return m_fd >= 0; }
    int Get() const { return m_fd; }

private:
    int m_fd;
};

// The source's end.
class DropReceiver
{
public:
    DropReceiver(); // without a socket, when there is none to be had: no target can answer then

    const QByteArray& GetAddress() const { return m_address; } // empty without a socket

    // After the drop. Runs Qt's loop, without the user's input, until a target has said what became of the data;
    // nothing when none says that it begins within a second, or what it has done within the given time, or when it
    // dies.
    std::optional<DROPEFFECT> WaitForReceipt(int nMilliseconds);

private:
    void OnConnection();
    void OnNews();
    bool WaitUntil(const bool& bReached, QDeadlineTimer deadline);

    QByteArray m_address, m_news;
    Socket m_listener, m_connection;
    std::unique_ptr<QSocketNotifier> m_onConnection, m_onNews;
    bool m_bBegun = false, m_bEnded = false;
};

// The target's end, made before the drop is handled.
class DropReceipt
{
public:
    explicit DropReceipt(const QByteArray& address); // empty: nobody wants to know

    void Send(DROPEFFECT effect); // what became of the data

private:
    void Write(const QByteArray& line);

    Socket m_connection;
};

} // namespace qtdesktop
