#include "Toolkit/headless/HeadlessDrag.h"

#include "Toolkit/focus/InputState.h"
#include "Toolkit/window/WindowApi.h"

namespace
{
DWORD FlagOf(toolkit::MouseButton button)
{
    return button == toolkit::MouseButton::Left    ? MK_LBUTTON
           : button == toolkit::MouseButton::Right ? MK_RBUTTON
                                                   : MK_MBUTTON;
}

toolkit::Cursor CursorOf(DROPEFFECT effect)
{
    return effect & DROPEFFECT_MOVE ? toolkit::Cursor::DropMove
           : effect                 ? toolkit::Cursor::DropCopy
                                    : toolkit::Cursor::NoDrop;
}
} // namespace

bool toolkit::HeadlessDesktop::IsDragging() const
{
    return m_drag && !m_drag->bOver;
}

DWORD toolkit::HeadlessDesktop::KeyState() const
{
    return m_drag->dwButtons | (m_modifiers.shift ? MK_SHIFT : 0) | (m_modifiers.control ? MK_CONTROL : 0) |
           (m_modifiers.alt ? MK_ALT : 0);
}

void toolkit::HeadlessDesktop::Hold(Modifiers modifiers)
{
    m_modifiers = modifiers;
    if (IsDragging() && m_hUnderMouse)
        StepDrag();
}

// Before anything else is told of it: a drag whose data is gone is over.
bool toolkit::HeadlessDesktop::EndIfGone()
{
    if (m_drag->data->IsGone())
        EndDrag(DROPEFFECT_NONE);
    return !IsDragging();
}

void toolkit::HeadlessDesktop::StepDrag()
{
    if (EndIfGone())
        return;
    RECT top{};
    GetWindowRect(m_hUnderMouse, &top);
    m_drag->tracker.MoveTo(m_hUnderMouse, m_cursorPos - CRect(top).TopLeft(), KeyState());
    FinishDragStep();
}

// The targets have been told; now for what they have posted and noted to be painted.
void toolkit::HeadlessDesktop::FinishDragStep()
{
    Run();
    if (!IsDragging() || EndIfGone())
        return;
    m_dragEffect = m_drag->tracker.GetEffect();
    if (m_drag->bOurs)
        ShowCursor(CursorOf(m_dragEffect));
}

void toolkit::HeadlessDesktop::DropOrCancel(MouseButton button, bool down)
{
    if (EndIfGone())
        return;
    const bool bDrop = !down && (m_drag->dwButtons & FlagOf(button));
    if (bDrop)
        EndDrag(m_drag->tracker.Drop());
    else if (down)
        EndDrag(DROPEFFECT_NONE);
}

void toolkit::HeadlessDesktop::EndDrag(DROPEFFECT effect)
{
    m_drag->bOver = true;
    m_drag->tracker.Leave();
    m_dragEffect = effect;
    if (!m_drag->bOurs)
        m_drag.reset();
    Run();
}

void toolkit::HeadlessDesktop::DragOut()
{
    m_drag->tracker.Leave();
    m_hUnderMouse = nullptr;
    FinishDragStep();
}

void toolkit::HeadlessDesktop::DropOutside(DROPEFFECT effect)
{
    DragOut();
    if (IsDragging())
        EndDrag(effect & m_drag->allowed);
}

void toolkit::HeadlessDesktop::DragIn(KindsAndBytes data, DROPEFFECT allowed)
{
    m_hUnderMouse = nullptr;
    m_dragEffect = DROPEFFECT_NONE;
    m_drag = std::make_unique<HeadlessDrag>(MakeOffer(std::move(data)), allowed, false, MK_LBUTTON);
}

DROPEFFECT toolkit::HeadlessDesktop::RunDrag(std::shared_ptr<OfferedData> data, DROPEFFECT allowed)
{
    if (m_drag)
        return DROPEFFECT_NONE; // another program's goes on
    const Cursor former = CurrentCursor();
    m_drag = std::make_unique<HeadlessDrag>(std::move(data), allowed, true, MouseKeyFlags() & kMouseButtons);
    StepDrag();
    if (const auto script = IsDragging() ? TakeFirst(m_dragScripts) : std::nullopt)
        (*script)();
    if (IsDragging())
        EndDrag(DROPEFFECT_NONE);
    m_drag.reset();
    ShowCursor(former);
    return m_dragEffect;
}

std::optional<std::string> toolkit::HeadlessDesktop::ReadDragged(std::string_view kind)
{
    return m_drag ? m_drag->data->Render(kind) : std::nullopt;
}
