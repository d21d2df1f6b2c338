#include "Toolkit/message/InputQueue.h"

#include "Toolkit/base/Text.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/focus/Focus.h"
#include "Toolkit/focus/KeyStates.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/input/KeyInput.h"
#include "Toolkit/input/MouseInput.h"
#include "Toolkit/message/Fifo.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/window/WindowApi.h"

namespace
{
using toolkit::InputEvent;
using toolkit::InputKind;

toolkit::Fifo<InputEvent> s_input;

// A desktop has nobody to tell that there is no memory: the event is dropped.
void Put(InputEvent event)
{
    event.time = toolkit::CurrentDesktop().Ticks();
    try {
        s_input.Put(event);
    } catch (const std::bad_alloc&) {
        return;
    }
    toolkit::RequestRun();
}

// Of several movements in a row only the last one counts.
bool ReplacesLast(const InputEvent& move)
{
    return !s_input.IsEmpty() && s_input.Last().kind == InputKind::MouseMove && s_input.Last().hTop == move.hTop;
}

void Activate(const InputEvent& event)
{
    if (!event.down)
        toolkit::ReleaseAllKeys(); // what is released elsewhere is not told here
    toolkit::SetActive(event.hTop, event.down);
}

void Place(const InputEvent& event)
{
    const toolkit::WindowRecord* pTop = toolkit::FindRecord(event.hTop);
    if (!pTop || !pTop->IsTop())
        return;
    const bool bMoved = event.kind == InputKind::Moved;
    const CPoint topLeft = bMoved ? event.at : pTop->rect.TopLeft();
    const CSize size = bMoved ? pTop->rect.Size() : CSize(event.at.x, event.at.y);
    toolkit::PlaceWindow(event.hTop, {topLeft, size});
}

void Handle(const InputEvent& event)
{
    switch (event.kind) {
    case InputKind::MouseMove:
    case InputKind::MouseButton:
    case InputKind::MouseWheel:
    case InputKind::MouseLeave:
        return toolkit::HandleMouse(event);
    case InputKind::Key:
        return toolkit::HandleKey(event);
    case InputKind::Character:
        return toolkit::HandleCharacter(event);
    case InputKind::Activate:
        return Activate(event);
    case InputKind::Resize:
    case InputKind::Moved:
        return Place(event);
    case InputKind::Close:
        SendMessage(event.hTop, WM_CLOSE, 0, 0);
    }
}
} // namespace

bool toolkit::HasInput()
{
    return !s_input.IsEmpty();
}

bool toolkit::RunOneInput()
{
    if (s_input.IsEmpty())
        return false;
    const InputEvent event = s_input.Take();
    UpdateWake();
    Handle(event);
    return true;
}

void toolkit::ResetInput()
{
    s_input = {};
    ReleaseAllKeys();
    ResetMouse();
}

void toolkit::InputMouseMove(HWND hTop, CPoint at, Modifiers modifiers)
{
    const InputEvent move{.kind = InputKind::MouseMove, .hTop = hTop, .at = at, .modifiers = modifiers};
    if (ReplacesLast(move))
        s_input.Last() = move;
    else
        Put(move);
}

void toolkit::InputMouseButton(HWND hTop, CPoint at, MouseButton button, bool down, Modifiers modifiers)
{
    Put({.kind = InputKind::MouseButton,
         .hTop = hTop,
         .at = at,
         .modifiers = modifiers,
         .button = button,
         .down = down});
}

void toolkit::InputMouseWheel(HWND hTop, CPoint at, int delta, Modifiers modifiers)
{
    Put({.kind = InputKind::MouseWheel, .hTop = hTop, .at = at, .modifiers = modifiers, .delta = delta});
}

void toolkit::InputMouseLeave(HWND hTop)
{
    Put({.kind = InputKind::MouseLeave, .hTop = hTop});
}

void toolkit::InputKey(UINT vkey, bool down, Modifiers modifiers)
{
    Put({.kind = InputKind::Key, .modifiers = modifiers, .down = down, .value = vkey});
}

void toolkit::InputText(std::string_view utf8)
{
    while (!utf8.empty()) {
        const CodePoint c = DecodeUtf8(utf8);
        utf8.remove_prefix(static_cast<std::size_t>(c.bytes));
        const bool bPrintable = c.value >= 0x20 && c.value != 0x7F && c.value < 0x110000;
        if (bPrintable)
            Put({.kind = InputKind::Character, .value = c.value});
    }
}

void toolkit::InputActivate(HWND hTop, bool active)
{
    Put({.kind = InputKind::Activate, .hTop = hTop, .down = active});
}

void toolkit::InputResize(HWND hTop, CSize client)
{
    Put({.kind = InputKind::Resize, .hTop = hTop, .at = {client.cx, client.cy}});
}

void toolkit::InputMoved(HWND hTop, CPoint screen)
{
    Put({.kind = InputKind::Moved, .hTop = hTop, .at = screen});
}

void toolkit::InputClose(HWND hTop)
{
    Put({.kind = InputKind::Close, .hTop = hTop});
}
