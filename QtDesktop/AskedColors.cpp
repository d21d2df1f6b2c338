#include "QtDesktop/AskedColors.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QPalette>

namespace qtdesktop
{
namespace
{

constexpr char kService[] = "org.freedesktop.portal.Desktop";
constexpr char kPath[] = "/org/freedesktop/portal/desktop";
constexpr char kInterface[] = "org.freedesktop.portal.Settings";
const QString kGroup = "org.freedesktop.appearance", kName = "color-scheme";
constexpr uint kDark = 1; // 0: no preference, 2: light

QPalette DarkPalette()
{
    const QColor window(48, 49, 52), base(30, 31, 33), text(240, 240, 240), faint(140, 141, 144);
    QPalette palette(text, window, QColor(84, 86, 90), QColor(20, 20, 21), QColor(70, 71, 74), text, Qt::white, base,
                     window);
    palette.setColor(QPalette::AlternateBase, QColor(38, 39, 42));
    palette.setColor(QPalette::Highlight, QColor(24, 110, 190));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Link, QColor(110, 176, 240));
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

// Menus stand out from what they cover, and what cannot be chosen has no shadow.
QPalette MenuPalette(QPalette palette)
{
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    palette.setColor(QPalette::Window, palette.color(QPalette::Light)); // of which the line around them is made
    palette.setColor(QPalette::Disabled, QPalette::Light, palette.color(QPalette::Base));
    return palette;
}

bool IsLight(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() > palette.color(QPalette::Text).lightness();
}

// A value within a value, as the older of the portal's two questions answers.
QVariant Innermost(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

// Nobody waits for the answer: the window is shown meanwhile. Where no bus is there, none is started for it.
AskedColors::AskedColors()
{
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect({}, kPath, kInterface, "SettingChanged", this, SLOT(OnSettingChanged(QDBusMessage)));
    QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, "Read");
    question << kGroup << kName;
    auto* const pAnswer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(pAnswer, &QDBusPendingCallWatcher::finished, this, [this, pAnswer] {
        const QDBusPendingReply<QDBusVariant> reply = *pAnswer;
        if (!reply.isError())
            Follow(Innermost(reply.value().variant()).toUInt());
        pAnswer->deleteLater();
    });
}

AskedColors::~AskedColors()
{
    Follow(0);
}

void AskedColors::OnSettingChanged(const QDBusMessage& news)
{
    const QVariantList said = news.arguments(); // group, name, value
    if (said.size() == 3 && said[0] == kGroup && said[1] == kName)
        Follow(Innermost(said[2]).toUInt());
}

void AskedColors::Follow(uint nWanted)
{
    const bool bDark = nWanted == kDark;
    if (bDark == m_bMadeDark || (bDark && !IsLight(QApplication::palette())))
        return;
    m_bMadeDark = bDark;
    const QPalette palette = bDark ? DarkPalette() : QPalette();
    QApplication::setPalette(palette);
    QApplication::setPalette(bDark ? MenuPalette(palette) : palette, "QMenu");
}

} // namespace qtdesktop
