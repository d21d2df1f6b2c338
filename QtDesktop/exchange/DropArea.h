// A window of the toolkit under a drag of Qt's.
#pragma once

#include "QtDesktop/exchange/DropReceipt.h"
#include "Toolkit/exchange/DragTracker.h"

#include <QDropEvent>
#include <memory>

namespace qtdesktop
{

// What it tells the toolkit's windows may destroy the one that it belongs to, but not the object itself.
class DropArea
{
public:
    explicit DropArea(HWND hTop) : m_hTop(hTop) {}

    void Enter(QDragEnterEvent& event);
    void Move(QDragMoveEvent& event);
    void Leave() { m_tracker.reset(); }
    void Drop(QDropEvent& event);

private:
    DROPEFFECT Follow(const QDropEvent& event); // to where it is, with the keys noted

    const HWND m_hTop;
    std::shared_ptr<toolkit::DragTracker> m_tracker; // while a drag is over the window
    DWORD m_dwKeys = 0;                              // that were down at its last movement
    ReceiptAddress m_receipt;                        // where that drag's source wants to hear
};

Qt::DropAction ToAction(DROPEFFECT effect);
Qt::DropActions ToActions(DROPEFFECT effects);
DROPEFFECT ToEffects(Qt::DropActions actions);

} // namespace qtdesktop
