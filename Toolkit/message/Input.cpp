#include "Toolkit/message/Input.h"

#include "Toolkit/base/Text.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/handle/WindowRecord.h"
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
void TellEveryWindow(UINT message)
{
    for (const toolkit::WindowRecord* pTop : toolkit::TopLevelRecords())
        PostMessage(pTop->hWnd, message, 0, 0);
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

void toolkit::InputMouseMove(HWND hTop, CPoint at, Modifiers modifiers)
{
    const InputEvent move{.kind = InputKind::MouseMove, .hTop = hTop, .at = at, .modifiers = modifiers};
    PutInput(move);
}

void toolkit::InputMouseButton(HWND hTop, CPoint at, MouseButton button, bool down, Modifiers modifiers)
{
    PutInput({.kind = InputKind::MouseButton,
              .hTop = hTop,
              .at = at,
              .modifiers = modifiers,
              .button = button,
              .down = down});
}

void toolkit::InputMouseWheel(HWND hTop, CPoint at, int delta, Modifiers modifiers)
{
    PutInput({.kind = InputKind::MouseWheel, .hTop = hTop, .at = at, .modifiers = modifiers, .delta = delta});
}

void toolkit::InputMouseLeave(HWND hTop)
{
    PutInput({.kind = InputKind::MouseLeave, .hTop = hTop});
}

void toolkit::InputKey(UINT vkey, bool down, Modifiers modifiers)
{
    PutInput({.kind = InputKind::Key, .modifiers = modifiers, .down = down, .value = vkey});
}

void toolkit::InputText(std::string_view utf8)
{
    while (!utf8.empty()) {
        const CodePoint c = DecodeUtf8(utf8);
        utf8.remove_prefix(static_cast<std::size_t>(c.bytes));
        const bool bPrintable = c.value >= 0x20 && c.value != 0x7F && c.value < kInvalidByte;
        if (bPrintable)
            PutInput({.kind = InputKind::Character, .value = c.value});
    }
}

void toolkit::InputActivate(HWND hTop, bool active)
{
    PutInput({.kind = InputKind::Activate, .hTop = hTop, .down = active});
}

void toolkit::InputResize(HWND hTop, CSize client)
{
    PutInput({.kind = InputKind::Resize, .hTop = hTop, .at = {client.cx, client.cy}});
}

void toolkit::InputMoved(HWND hTop, CPoint screen)
{
    PutInput({.kind = InputKind::Moved, .hTop = hTop, .at = screen});
}

void toolkit::InputClose(HWND hTop)
{
    PutInput({.kind = InputKind::Close, .hTop = hTop});
}

void toolkit::InputColors()
{
    if (SetColorScheme(CurrentDesktop().GetColorScheme()))
        TellEveryWindow(WM_SYSCOLORCHANGE);
}

void toolkit::InputScale()
{
    const PixelScale scale = CurrentDesktop().GetScreenScale();
    if (scale == ScreenScale())
        return;
    SetScreenScale(scale);
    TellEveryWindow(WM_SYSCOLORCHANGE);
    TellEveryWindow(WM_FONTCHANGE);
}

void toolkit::InputFont()
{
    TextEngine& engine = CurrentDesktop().GetTextEngine();
    if (&engine == &CurrentTextEngine())
        return;
    InstallTextEngine(&engine);
    TellEveryWindow(WM_FONTCHANGE);
}
