#include "QtDesktop/QueuePump.h"

#include "Toolkit/base/Ticks.h"
#include "Toolkit/run/Run.h"

#include <QCoreApplication>
#include <QTimerEvent>
namespace qtdesktop
{
namespace
{

constexpr DWORD kTurnMilliseconds = 8; // half a frame, so that input and painting keep up at 60 frames a second

const QEvent::Type kTurn = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

void QueuePump::Wake(std::optional<DWORD> inMilliseconds)
{
    m_timer.stop();
    if (!inMilliseconds)
        return;
    m_dueTick = toolkit::SystemTicks() + *inMilliseconds;
    WaitUntilDue();
}

void QueuePump::WaitUntilDue()
{
    const auto remaining = static_cast<std::int32_t>(m_dueTick - toolkit::SystemTicks());
    if (remaining > 0)
        m_timer.start(remaining, Qt::PreciseTimer, this);
    else
        RequestTurn();
}

// Qt handles the events that were posted before it looked at the screen's, so a posted turn cannot starve input.
void QueuePump::RequestTurn()
{
    if (!m_bTurnPosted.exchange(true))
        QCoreApplication::postEvent(this, new QEvent(kTurn));
}

bool QueuePump::event(QEvent* pEvent)
{
    if (pEvent->type() != kTurn)
        return QObject::event(pEvent);
    TakeTurn();
    return true;
}

// Asks the clock again, for the toolkit does not repeat a request that was met too early.
void QueuePump::timerEvent(QTimerEvent* pEvent)
{
    if (pEvent->timerId() != m_timer.timerId())
        return;
    m_timer.stop();
    WaitUntilDue();
}

void QueuePump::TakeTurn()
{
    // Taken back before the queue runs, for whoever asks for a turn from inside it.
    m_bTurnPosted = false;
    if (!toolkit::RunPendingMessagesFor(kTurnMilliseconds))
        RequestTurn();
}

} // namespace qtdesktop
