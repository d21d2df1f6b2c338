// A window of the toolkit under a drag of Qt's.
#pragma once

#include "Toolkit/window/DragTracker.h"

#include <QDropEvent>
#include <optional>

namespace qtdesktop
{

class DropArea
{
public:
    explicit DropArea(HWND hTop) : m_hTop(hTop) {}

    void Enter(QDragEnterEvent& event);
    void Move(QDragMoveEvent& event);
    void Leave() { m_tracker.reset(); }
    void Drop(QDropEvent& event);

private:
    DROPEFFECT Follow(const QDropEvent& event);

    const HWND m_hTop;
    std::optional<toolkit::DragTracker> m_tracker; // while a drag is over the window
};

Qt::DropAction ToAction(DROPEFFECT effect);
Qt::DropActions ToActions(DROPEFFECT effects);
DROPEFFECT ToEffects(Qt::DropActions actions);

} // namespace qtdesktop
