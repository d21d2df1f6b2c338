#include "QtDesktop/exchange/QtDrag.h"

#include "QtDesktop/exchange/DropArea.h"
#include "QtDesktop/exchange/DropReceipt.h"
#include "QtDesktop/exchange/OfferedMime.h"

#include <QBasicTimer>
#include <QDrag>
#include <QGuiApplication>
#include <QTimerEvent>
#include <optional>
#include <utility>

namespace qtdesktop
{
namespace
{

constexpr int kLookMilliseconds = 50;

std::optional<DROPEFFECT> s_ownDrop;

bool IsShiftHeld()
{
    return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ShiftModifier);
}

// What the window system is told of. Another program that is offered files deals with them itself, and many move what
// they may move: they are only offered a copy, unless the user holds Shift. Programs of this kind learn from the
// receipt what is allowed. On Wayland they hear nothing of the keys but what is proposed: a move is offered to all.
Qt::DropActions OfferedActions(DROPEFFECT allowed, bool bShift)
{
    const bool bCopyAlone = (allowed & DROPEFFECT_COPY) && !bShift && !IsProposalTrusted();
    return ToActions(bCopyAlone ? DROPEFFECT_COPY : allowed);
}

Qt::DropAction ProposedAction(DROPEFFECT allowed)
{
    const bool bCopy = (allowed & DROPEFFECT_COPY) && !IsProposalTrusted();
    return bCopy ? Qt::CopyAction : allowed & DROPEFFECT_MOVE ? Qt::MoveAction : Qt::IgnoreAction;
}

// What the drag belongs to: no window, which might go under way. Ends the drag when its data is gone, and when Shift is
// pressed or released: what is offered is settled when a drag begins, so that another one takes its place.
class DragOwner : public QObject
{
public:
    explicit DragOwner(std::shared_ptr<toolkit::OfferedData> data) : m_data(std::move(data))
    {
        m_timer.start(kLookMilliseconds, this);
    }

    bool IsShiftHeld() const { return m_bShift; }
    bool TakeChange() { return std::exchange(m_bChanged, false); }

protected:
    void timerEvent(QTimerEvent*) override
    {
        m_bChanged = std::exchange(m_bShift, qtdesktop::IsShiftHeld()) != m_bShift;
        if (m_bChanged || m_data->IsGone())
            QDrag::cancel();
    }

private:
    const std::shared_ptr<toolkit::OfferedData> m_data;
    QBasicTimer m_timer;
    bool m_bShift = qtdesktop::IsShiftHeld();
    bool m_bChanged = false;
};

} // namespace

DROPEFFECT RunQtDrag(std::shared_ptr<toolkit::OfferedData> data, DROPEFFECT allowed, int nMilliseconds)
{
    if (QGuiApplication::mouseButtons() == Qt::NoButton)
        return DROPEFFECT_NONE; // released while the toolkit was still busy with the movement: Qt would drag on without
                                // it
    DropReceiver receiver(allowed);
    DragOwner owner(data);
    Qt::DropAction told = Qt::IgnoreAction;
    do {
        const auto pDrag = new QDrag(&owner);
        pDrag->setMimeData(new OfferedMime(data, receiver.GetAddress()));
        s_ownDrop.reset();
        told = pDrag->exec(OfferedActions(allowed, owner.IsShiftHeld()), ProposedAction(allowed));
    } while (owner.TakeChange() && told == Qt::IgnoreAction && !s_ownDrop && !data->IsGone());
    if (const auto own = std::exchange(s_ownDrop, std::nullopt))
        return *own;
    if (told == Qt::IgnoreAction)
        return DROPEFFECT_NONE;
    return receiver.WaitForReceipt(nMilliseconds).value_or(DROPEFFECT_COPY);
}

void NoteOwnDrop(DROPEFFECT effect)
{
    s_ownDrop = effect;
}

bool IsProposalTrusted()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace qtdesktop
