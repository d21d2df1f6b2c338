// The times that other programs put into their requests, on X11.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QElapsedTimer>
#include <QObject>
#include <optional>

namespace qtdesktop
{

// Qt takes the latest time that anybody names for the server's own. A program that names one the server has not come
// to yet (file managers are seen to put the seconds since 1970 there) would have the server refuse the clipboard and
// all else that Qt asks for with that time. Such a time is replaced by none before Qt sees it.
class ForeignTimes : public QObject, public QAbstractNativeEventFilter
{
public:
    ForeignTimes(); // looks at all events of the application; at none but on X11
    ~ForeignTimes() override;

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;
    bool nativeEventFilter(const QByteArray& eventType, void* pMessage, qintptr* pResult) override;

private:
    bool IsToCome(quint32 time) const;

    std::optional<quint32> m_serverTime; // of the latest input
    QElapsedTimer m_sinceThen;
};

} // namespace qtdesktop
