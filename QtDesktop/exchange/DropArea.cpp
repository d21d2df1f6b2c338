#include "QtDesktop/exchange/DropArea.h"

#include "QtDesktop/exchange/DropReceipt.h"
#include "QtDesktop/exchange/OfferedMime.h"
#include "QtDesktop/exchange/QtDrag.h"
#include "Toolkit/message/Messages.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPointer>

namespace qtdesktop
{
namespace
{

// Another program's data, or that of a program like this one, for as long as the drag is over a window.
std::shared_ptr<toolkit::OfferedData> OfferOf(const QMimeData* pMime)
{
    if (const auto* pOwn = dynamic_cast<const OfferedMime*>(pMime))
        return pOwn->GetData();
    return std::make_shared<MimeOffer>([pHeld = QPointer<const QMimeData>(pMime)] { return pHeld.data(); });
}

constexpr DWORD Flag(bool bSet, DWORD flag)
{
    return bSet ? flag : 0;
}

// Where the keys cannot be read during a drag, what the desktop proposes tells whether Ctrl is held.
DWORD KeyState(const QDropEvent& event)
{
    const bool bCopyOfBoth = event.proposedAction() == Qt::CopyAction &&
                             event.possibleActions().testFlag(Qt::MoveAction) && IsProposalTrusted();
    return Flag(event.buttons().testFlag(Qt::LeftButton), MK_LBUTTON) |
           Flag(event.buttons().testFlag(Qt::RightButton), MK_RBUTTON) |
           Flag(event.modifiers().testFlag(Qt::ShiftModifier), MK_SHIFT) |
           Flag(event.modifiers().testFlag(Qt::ControlModifier) || bCopyOfBoth, MK_CONTROL) |
           Flag(event.modifiers().testFlag(Qt::AltModifier), MK_ALT);
}

const OfferedMime* FindOwn(const QDropEvent& event)
{
    return dynamic_cast<const OfferedMime*>(event.mimeData());
}

} // namespace

Qt::DropAction ToAction(DROPEFFECT effect)
{
    return effect & DROPEFFECT_MOVE   ? Qt::MoveAction
           : effect & DROPEFFECT_COPY ? Qt::CopyAction
           : effect & DROPEFFECT_LINK ? Qt::LinkAction
                                      : Qt::IgnoreAction;
}

Qt::DropActions ToActions(DROPEFFECT effects)
{
    Qt::DropActions actions;
    for (const DROPEFFECT effect : {DROPEFFECT_COPY, DROPEFFECT_MOVE, DROPEFFECT_LINK})
        if (effects & effect)
            actions |= ToAction(effect);
    return actions;
}

DROPEFFECT ToEffects(Qt::DropActions actions)
{
    DROPEFFECT effects = DROPEFFECT_NONE;
    for (const DROPEFFECT effect : {DROPEFFECT_COPY, DROPEFFECT_MOVE, DROPEFFECT_LINK})
        effects |= actions & ToAction(effect) ? effect : DROPEFFECT_NONE;
    return effects;
}

// What is agreed on with a source of this kind, the window system may not know as possible: it then is told that the
// data is copied. Accepted whatever the effect is: else Qt would tell of no movement that follows.
void DropArea::Enter(QDragEnterEvent& event)
{
    const OfferedMime* const pOwn = FindOwn(event);
    const auto receipt = pOwn ? std::nullopt : ReceiptAddress::From(event.mimeData()->data(kReceiptKind));
    const DROPEFFECT allowed = pOwn      ? pOwn->GetAllowed()
                               : receipt ? receipt->allowed
                                         : ToEffects(event.possibleActions());
    m_tracker = std::make_shared<toolkit::DragTracker>(OfferOf(event.mimeData()), allowed);
    m_receipt = receipt.value_or(ReceiptAddress());
    m_dwKeys = KeyState(event);
    event.setDropAction(ToAction(Follow(event)));
    event.accept();
}

void DropArea::Move(QDragMoveEvent& event)
{
    m_dwKeys = KeyState(event);
    const DROPEFFECT effect = Follow(event);
    event.setDropAction(ToAction(effect));
    event.setAccepted(effect != DROPEFFECT_NONE);
}

// With the keys of the last movement, whose effect the user has seen: what another program's drop tells of them is how
// they are when the drop arrives, and Ctrl may be up again by then. A refusal needs both, the action and the ignored
// event.
void DropArea::Drop(QDropEvent& event)
{
    if (!m_tracker)
        return event.ignore();
    const auto tracker = m_tracker;
    const bool bOwn = FindOwn(event) != nullptr;
    DropReceipt receipt(m_receipt.name);
    Follow(event);
    m_tracker.reset();
    const DROPEFFECT effect = tracker->Drop();
    if (bOwn)
        NoteOwnDrop(effect);
    receipt.Send(effect);
    event.setDropAction(ToAction(effect));
    event.setAccepted(effect != DROPEFFECT_NONE);
}

DROPEFFECT DropArea::Follow(const QDropEvent& event)
{
    const auto tracker = m_tracker;
    if (!tracker)
        return DROPEFFECT_NONE;
    const QPoint at = event.position().toPoint();
    return tracker->MoveTo(m_hTop, {at.x(), at.y()}, m_dwKeys);
}

} // namespace qtdesktop
