// Runs the toolkit's queue from Qt's event loop.
#pragma once

#include "Toolkit/base/Types.h"

#include <QBasicTimer>
#include <QObject>
#include <atomic>
#include <optional>

namespace qtdesktop
{

// Each turn runs the queue for a few milliseconds at most and then lets Qt have a look at real input. Turns may
// nest: a message box that the queue opened runs Qt's loop, and the queue in it, before the outer turn ends.
class QueuePump : public QObject
{
public:
    void Wake(std::optional<DWORD> inMilliseconds); // replaces the former request; 0 is a turn at once
    void WakeFromThread() { RequestTurn(); }        // any thread

protected:
    bool event(QEvent* pEvent) override;
    void timerEvent(QTimerEvent* pEvent) override;

private:
    void WaitUntilDue();
    void RequestTurn();
    void TakeTurn();

    QBasicTimer m_timer;
    DWORD m_dueTick = 0;                     // when the timer's turn is
    std::atomic<bool> m_bTurnPosted = false; // a turn is among Qt's posted events
};

} // namespace qtdesktop
