// How a program learns what another one has made of its drag. What the window system says of a drop is known too early
// to be true: a target that refuses, or dies, looks like one that has taken all.
//
// The dragged data carries the address of a socket under a name that nobody can guess. A target of this kind connects
// to it at the drop and writes what has become of the data; it alone is believed when it says that something was moved.
// The address also tells which effects the source allows: the window system is told less of them, lest programs of
// another kind move what they are only to copy.
#pragma once

#include "Toolkit/desktop/DropEffect.h"

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

// Where a target may write to, as it travels with the data.
struct ReceiptAddress
{
    QByteArray name;                      // empty: nowhere
    DROPEFFECT allowed = DROPEFFECT_NONE; // to a target of this kind
    bool bAsked = false;                  // a target has read it: one of this kind is there

    QByteArray ToBytes() const { return QByteArray::number(allowed) + ' ' + name; }
    static std::optional<ReceiptAddress> From(const QByteArray& bytes); // nothing for what is none
};

// The source's end.
class DropReceiver
{
public:
    explicit DropReceiver(DROPEFFECT allowed); // without a socket, when there is none: no target can answer then

    const std::shared_ptr<ReceiptAddress>& GetAddress() const { return m_address; }

    // After the drop. Runs Qt's loop, without the user's input, until a target has said what became of the data:
    // nothing when it does not within the given time, when it dies, and, almost at once, when it is none of this kind.
    std::optional<DROPEFFECT> WaitForReceipt(int nMilliseconds);

private:
    void OnConnection();
    void OnNews();
    static bool WaitUntil(const bool& bReached, QDeadlineTimer deadline);

    const std::shared_ptr<ReceiptAddress> m_address = std::make_shared<ReceiptAddress>();
    QByteArray m_news;
    Socket m_listener, m_connection;
    std::unique_ptr<QSocketNotifier> m_onConnection, m_onNews;
    bool m_bEnded = false;
};

// The target's end, made before the drop is handled.
class DropReceipt
{
public:
    explicit DropReceipt(const QByteArray& address); // empty: nobody wants to know

    void Send(DROPEFFECT effect); // what became of the data

private:
    Socket m_connection;
};

} // namespace qtdesktop
