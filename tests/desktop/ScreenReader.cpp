#include "tests/desktop/ScreenReader.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>

namespace
{

constexpr char kBus[] = "screen reader";
constexpr int kMostParts = 200; // of one parent

QDBusConnection Bus()
{
    return QDBusConnection(kBus);
}

} // namespace

ScreenReader::~ScreenReader()
{
    QDBusConnection::disconnectFromBus(kBus);
}

// Programs take the desktop's wish for dark from its settings, which this answers for.
bool ScreenReader::Start(XServer& screen, bool bDark)
{
    m_bDark = bDark;
    screen.Start(m_daemon, "dbus-daemon", {"--session", "--nofork", "--print-address"});
    m_address = QString::fromStdString(m_daemon.Line());
    screen.m_environment.insert("DBUS_SESSION_BUS_ADDRESS", m_address);
    screen.m_environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    QDBusConnection bus = QDBusConnection::connectToBus(m_address, kBus);
    return bus.registerVirtualObject("/org", this, QDBusConnection::SubPath) &&
           bus.registerService("org.freedesktop.portal.Desktop") && bus.registerService("org.a11y.Bus");
}

bool ScreenReader::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    if (message.member() == "GetAddress")
        return connection.send(message.createReply(m_address));
    if (message.member() != "Read")
        return false;
    const QDBusVariant value(m_bDark ? 1u : 2u);
    return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(value)))));
}

std::vector<Part> ScreenReader::Read(qint64 nProcess)
{
    std::vector<Part> parts;
    const QDBusReply<QStringList> services = Bus().interface()->registeredServiceNames();
    for (const QString& service : services.value())
        if (service.startsWith(':') && Bus().interface()->servicePid(service).value() == nProcess)
            AddChildren({service, "/org/a11y/atspi/accessible/root", {}, {}, {}, {}}, parts);
    return parts;
}

QVariantList ScreenReader::Ask(const Part& part, const QString& interface, const QString& what,
                               const QVariantList& arguments)
{
    QDBusMessage question = QDBusMessage::createMethodCall(part.service, part.path, interface, what);
    question.setArguments(arguments);
    const QDBusMessage answer = Bus().call(question, QDBus::Block, kPatience);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments() : QVariantList();
}

QVariant ScreenReader::Property(const Part& part, const QString& name)
{
    const QVariantList answer =
        Ask(part, "org.freedesktop.DBus.Properties", "Get", {"org.a11y.atspi.Accessible", name});
    return answer.isEmpty() ? QVariant() : answer[0].value<QDBusVariant>().variant();
}

void ScreenReader::Describe(Part& part)
{
    part.name = Property(part, "Name").toString();
    part.role = Ask(part, "org.a11y.atspi.Accessible", "GetRoleName", {}).value(0).toString();
    const auto words = qdbus_cast<QList<uint>>(Ask(part, "org.a11y.atspi.Accessible", "GetState", {}).value(0));
    part.states = words.size() == 2 ? words[0] : 0;
    const auto numbers = Ask(part, "org.a11y.atspi.Component", "GetExtents", {0u}).value(0).value<QDBusArgument>();
    int x = 0, y = 0, cx = 0, cy = 0;
    if (numbers.currentType() != QDBusArgument::StructureType)
        return;
    numbers.beginStructure();
    numbers >> x >> y >> cx >> cy;
    numbers.endStructure();
    part.place = {x, y, cx, cy};
}

void ScreenReader::AddChildren(const Part& parent, std::vector<Part>& parts)
{
    if (Property(parent, "ChildCount").toInt() > kMostParts)
        return;
    const auto list = Ask(parent, "org.a11y.atspi.Accessible", "GetChildren", {}).value(0).value<QDBusArgument>();
    if (list.currentType() != QDBusArgument::ArrayType)
        return;
    for (list.beginArray(); !list.atEnd();) {
        Part child;
        QDBusObjectPath path;
        list.beginStructure();
        list >> child.service >> path;
        list.endStructure();
        child.path = path.path();
        child.depth = parent.depth + 1;
        Describe(child);
        parts.push_back(child);
        AddChildren(child, parts);
    }
    list.endArray();
}
