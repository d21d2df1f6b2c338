#include "QtDesktop/exchange/ForeignTimes.h"

#include <QGuiApplication>
#include <cstring>

namespace qtdesktop
{
namespace
{

constexpr int kTolerance = 60'000; // milliseconds

// Events as the server sends them: a press, a release, a movement; a request for a selection, as which dragged data is
// asked for, too; and one of an extension, of which those of the pointer have numbers that no other one uses.
constexpr quint8 kFirstPointer = 4, kLastPointer = 6, kSelectionRequest = 30, kExtension = 35;

template <class Number>
Number NumberAt(const void* pMessage, std::size_t offset)
{
    Number number;
    std::memcpy(&number, static_cast<const char*>(pMessage) + offset, sizeof number);
    return number;
}

bool IsPointer(unsigned type)
{
    return type >= kFirstPointer && type <= kLastPointer;
}

} // namespace

ForeignTimes::ForeignTimes()
{
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        qApp->installNativeEventFilter(this);
}

ForeignTimes::~ForeignTimes()
{
    if (qApp)
        qApp->removeNativeEventFilter(this);
}

bool ForeignTimes::nativeEventFilter(const QByteArray&, void* pMessage, qintptr*)
{
    const auto type = NumberAt<quint8>(pMessage, 0);
    if (IsPointer(type))
        NoteTime(NumberAt<quint32>(pMessage, 4));
    else if (type == kExtension && IsPointer(NumberAt<quint16>(pMessage, 8)))
        NoteTime(NumberAt<quint32>(pMessage, 12));
    else if (type == kSelectionRequest && IsToCome(NumberAt<quint32>(pMessage, 4)))
        std::memcpy(static_cast<char*>(pMessage) + 4, &*m_lastInput, sizeof *m_lastInput);
    return false;
}

void ForeignTimes::NoteTime(quint32 time)
{
    m_lastInput = time;
    m_sinceThen.start();
}

// Times begin anew at 0 after 49 days; 0 is none.
bool ForeignTimes::IsToCome(quint32 time) const
{
    return m_lastInput && time != 0 &&
           static_cast<qint32>(time - *m_lastInput - static_cast<quint32>(m_sinceThen.elapsed())) > kTolerance;
}

} // namespace qtdesktop
