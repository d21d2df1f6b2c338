// The times that other programs put into their requests, on X11.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QElapsedTimer>
#include <optional>

namespace qtdesktop
{

// Qt takes the latest time that anybody names for the server's own. A program that names one the server has not come
// to yet (file managers are seen to put the seconds since 1970 there) would have the server refuse the clipboard and
// all else that Qt asks for with that time. It would not get what is dragged either, but by chance: that is asked for
// by the time of the drag's last movement. So this time takes the place of such a one before Qt sees it.
class ForeignTimes : public QAbstractNativeEventFilter
{
public:
    ForeignTimes(); // looks at all events that come from the server
    ~ForeignTimes() override;

    bool nativeEventFilter(const QByteArray& eventType, void* pMessage, qintptr* pResult) override;

private:
    void NoteTime(quint32 time);
    bool IsToCome(quint32 time) const;

    std::optional<quint32> m_lastInput; // of the pointer, by the server's clock
    QElapsedTimer m_sinceThen;
};

} // namespace qtdesktop
