#include "QtDesktop/ForeignTimes.h"

#include <QGuiApplication>
#include <QInputEvent>
#include <cstring>

namespace qtdesktop
{
namespace
{

constexpr int kTolerance = 60'000; // milliseconds
constexpr unsigned char kSelectionRequest = 30;

// How such an event begins; the rest does not matter here.
struct SelectionRequest
{
    quint8 type; // with the highest bit set when a program has sent it and not the server
    quint8 unused;
    quint16 sequence;
    quint32 time; // 0: none
};

} // namespace

ForeignTimes::ForeignTimes()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    qApp->installEventFilter(this);
    qApp->installNativeEventFilter(this);
}

ForeignTimes::~ForeignTimes()
{
    qApp->removeNativeEventFilter(this);
}

bool ForeignTimes::eventFilter(QObject*, QEvent* pEvent)
{
    if (!pEvent->isInputEvent())
        return false;
    if (const auto time = static_cast<quint32>(static_cast<QInputEvent*>(pEvent)->timestamp()); time != 0) {
        m_serverTime = time;
        m_sinceThen.start();
    }
    return false;
}

bool ForeignTimes::nativeEventFilter(const QByteArray&, void* pMessage, qintptr*)
{
    SelectionRequest request;
    std::memcpy(&request, pMessage, sizeof request);
    if ((request.type & 0x7F) == kSelectionRequest && request.time != 0 && IsToCome(request.time)) {
        request.time = 0;
        std::memcpy(pMessage, &request, sizeof request);
    }
    return false;
}

// Times begin anew at 0 after 49 days.
bool ForeignTimes::IsToCome(quint32 time) const
{
    return m_serverTime &&
           static_cast<qint32>(time - *m_serverTime - static_cast<quint32>(m_sinceThen.elapsed())) > kTolerance;
}

} // namespace qtdesktop
