#include "QtDesktop/QtDrag.h"

#include "QtDesktop/DropArea.h"
#include "QtDesktop/DropReceipt.h"
#include "QtDesktop/OfferedMime.h"

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

// Another program that is offered files deals with them itself: it is to copy them, unless the user holds Shift or it
// thinks otherwise. On Wayland the program's own windows hear nothing but what is proposed, and that is to be a move.
Qt::DropAction ProposedAction(DROPEFFECT allowed)
{
    const bool bCopy = (allowed & DROPEFFECT_COPY) && !IsProposalTrusted();
    return bCopy ? Qt::CopyAction : allowed & DROPEFFECT_MOVE ? Qt::MoveAction : Qt::IgnoreAction;
}

// What the drag belongs to: no window, which might go under way. Ends the drag when its data is gone.
class DragOwner : public QObject
{
public:
    explicit DragOwner(std::shared_ptr<toolkit::OfferedData> data) : m_data(std::move(data))
    {
        m_timer.start(kLookMilliseconds, this);
    }

protected:
    void timerEvent(QTimerEvent*) override
    {
        if (m_data->IsGone())
            QDrag::cancel();
    }

private:
    const std::shared_ptr<toolkit::OfferedData> m_data;
    QBasicTimer m_timer;
};

} // namespace

DROPEFFECT RunQtDrag(std::shared_ptr<toolkit::OfferedData> data, DROPEFFECT allowed, int nMilliseconds)
{
    if (QGuiApplication::mouseButtons() == Qt::NoButton)
        return DROPEFFECT_NONE; // released while the toolkit was still busy with the movement: Qt would drag on without
                                // it
    DropReceiver receiver;
    DragOwner owner(data);
    const auto pDrag = new QDrag(&owner);
    pDrag->setMimeData(new OfferedMime(data, receiver.GetAddress()));
    s_ownDrop.reset();
    const Qt::DropAction told = pDrag->exec(ToActions(allowed), ProposedAction(allowed));
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
