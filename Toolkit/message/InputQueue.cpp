#include "Toolkit/message/InputQueue.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/message/Fifo.h"
#include "Toolkit/message/Queue.h"

namespace
{
toolkit::Fifo<toolkit::InputEvent> s_input;

bool ReplacesLast(const toolkit::InputEvent& event)
{
    return event.kind == toolkit::InputKind::MouseMove && !s_input.IsEmpty() &&
           s_input.Last().kind == toolkit::InputKind::MouseMove && s_input.Last().hTop == event.hTop;
}
} // namespace

void toolkit::PutInput(InputEvent event)
{
    if (ReplacesLast(event)) {
        s_input.Last() = event;
        return;
    }
    event.time = CurrentDesktop().Ticks();
    try {
        s_input.Put(event);
    } catch (const std::bad_alloc&) {
        return;
    }
    RequestRun();
}

bool toolkit::HasInput()
{
    return !s_input.IsEmpty();
}

std::optional<toolkit::InputEvent> toolkit::TakeInput()
{
    return s_input.IsEmpty() ? std::nullopt : std::optional(s_input.Take());
}

void toolkit::DropInput()
{
    s_input = {};
}
