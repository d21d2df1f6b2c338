#include "Toolkit/input/InputHandling.h"

#include "Toolkit/focus/Focus.h"
#include "Toolkit/focus/InputState.h"
#include "Toolkit/handle/WindowRecord.h"
#include "Toolkit/input/KeyInput.h"
#include "Toolkit/input/MouseInput.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/window/WindowSettings.h"

namespace
{
using toolkit::InputEvent;
using toolkit::InputKind;

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

bool toolkit::RunOneInput()
{
    const std::optional<InputEvent> event = TakeInput();
    if (!event)
        return false;
    UpdateWake();
    Handle(*event);
    return true;
}

void toolkit::ResetInput()
{
    DropInput();
    ReleaseAllKeys();
    ResetMouse();
}
