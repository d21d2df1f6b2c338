#include "QtDesktop/exchange/DropReceipt.h"

#include <QEventLoop>
#include <QRandomGenerator>
#include <QTimer>
#include <algorithm>
#include <cstddef>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace qtdesktop
{
namespace
{

constexpr int kAskMilliseconds = 500; // the target reads the address while the drag is over it, or at the drop

// In the abstract name space, which leaves no file behind.
struct Address
{
    explicit Address(const QByteArray& name)
    {
        const auto nName = std::min<std::size_t>(static_cast<std::size_t>(name.size()), sizeof address.sun_path - 1);
        std::copy_n(name.data(), nName, address.sun_path + 1);
        length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + nName);
    }

    const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&address); }

    sockaddr_un address{AF_UNIX, {}};
    socklen_t length;
};

Socket MakeSocket()
{
    return Socket(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

QByteArray RandomName()
{
    quint32 words[8];
    QRandomGenerator::system()->fillRange(words);
    return "toolkit-drop-" + QByteArray(reinterpret_cast<const char*>(words), sizeof words).toHex();
}

// Only a program of the same user is believed.
bool IsOfSameUser(const Socket& connection)
{
    ucred peer{};
    socklen_t length = sizeof peer;
    return getsockopt(connection.Get(), SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 && peer.uid == geteuid();
}

} // namespace

Socket::~Socket()
{
    if (m_fd >= 0)
        close(m_fd);
}

Socket::Socket(Socket&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}

Socket& Socket::operator=(Socket&& other) noexcept
{
    std::swap(m_fd, other.m_fd);
    return *this;
}

std::optional<ReceiptAddress> ReceiptAddress::From(const QByteArray& bytes)
{
    bool bNumber = false;
    const qsizetype blank = bytes.indexOf(' ');
    const DROPEFFECT effects = bytes.left(std::max<qsizetype>(blank, 0)).toUInt(&bNumber);
    return bNumber ? std::optional(ReceiptAddress{bytes.mid(blank + 1), effects}) : std::nullopt;
}

DropReceiver::DropReceiver(DROPEFFECT allowed) : m_listener(MakeSocket())
{
    m_address->allowed = allowed;
    const QByteArray name = RandomName();
    const Address address(name);
    if (!m_listener || bind(m_listener.Get(), address.Get(), address.length) != 0 || listen(m_listener.Get(), 4) != 0)
        return;
    m_address->name = name;
    m_onConnection = std::make_unique<QSocketNotifier>(m_listener.Get(), QSocketNotifier::Read);
    QObject::connect(m_onConnection.get(), &QSocketNotifier::activated, [this] { OnConnection(); });
}

void DropReceiver::OnConnection()
{
    Socket connection(accept4(m_listener.Get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!connection || m_connection || !IsOfSameUser(connection))
        return; // there is one drop to a drag
    m_connection = std::move(connection);
    m_onNews = std::make_unique<QSocketNotifier>(m_connection.Get(), QSocketNotifier::Read);
    QObject::connect(m_onNews.get(), &QSocketNotifier::activated, [this] { OnNews(); });
}

void DropReceiver::OnNews()
{
    char buffer[64];
    const ssize_t n = read(m_connection.Get(), buffer, sizeof buffer);
    if (n > 0)
        m_news.append(buffer, n);
    m_bEnded = n == 0 || m_news.contains('\n') || m_news.size() > 64;
    if (m_bEnded)
        m_onNews->setEnabled(false);
}

bool DropReceiver::WaitUntil(const bool& bReached, QDeadlineTimer deadline)
{
    QEventLoop loop;
    QTimer wake; // has the loop look at the deadline
    wake.start(20);
    while (!bReached && !deadline.hasExpired())
        loop.processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    return bReached;
}

std::optional<DROPEFFECT> DropReceiver::WaitForReceipt(int nMilliseconds)
{
    if (m_address->name.isEmpty() || !WaitUntil(m_address->bAsked, QDeadlineTimer(kAskMilliseconds)) ||
        !WaitUntil(m_bEnded, QDeadlineTimer(nMilliseconds)) || !m_news.endsWith('\n'))
        return std::nullopt;
    bool bNumber = false;
    const DROPEFFECT effect = m_news.chopped(1).toUInt(&bNumber);
    return bNumber ? std::optional(effect) : std::nullopt;
}

DropReceipt::DropReceipt(const QByteArray& name)
{
    if (name.isEmpty())
        return;
    const Address address(name);
    Socket connection = MakeSocket();
    if (connection && connect(connection.Get(), address.Get(), address.length) == 0 && IsOfSameUser(connection))
        m_connection = std::move(connection);
}

// A source that does not listen any more takes it for a copy.
void DropReceipt::Send(DROPEFFECT effect)
{
    const QByteArray line = QByteArray::number(effect) + '\n';
    if (m_connection)
        send(m_connection.Get(), line.data(), static_cast<std::size_t>(line.size()), MSG_NOSIGNAL);
    m_connection = Socket();
}

} // namespace qtdesktop
