#include "Toolkit/headless/HeadlessDesktop.h"

#include "Toolkit/base/Text.h"
#include "Toolkit/headless/HeadlessDrag.h"
#include "Toolkit/input/MouseInput.h"
#include "Toolkit/window/WindowApi.h"

#include <chrono>
#include <utility>

namespace
{
// A client point of any window, on its top-level window's surface.
CPoint ToSurface(HWND hWnd, CPoint at)
{
    RECT top{};
    GetWindowRect(GetTopLevel(hWnd), &top);
    ClientToScreen(hWnd, &at);
    return at - CRect(top).TopLeft();
}

UINT KeyOfCharacter(char32_t c)
{
    if (c >= 'a' && c <= 'z')
        return static_cast<UINT>(c - 'a' + 'A');
    if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == ' ')
        return static_cast<UINT>(c);
    switch (c) {
    case '+':
        return VK_OEM_PLUS;
    case ',':
        return VK_OEM_COMMA;
    case '-':
        return VK_OEM_MINUS;
    case '.':
        return VK_OEM_PERIOD;
    default:
        return VK_UNKNOWN;
    }
}
} // namespace

toolkit::HeadlessDesktop::HeadlessDesktop()
{
    InstallDesktop(this);
}

toolkit::HeadlessDesktop::~HeadlessDesktop()
{
    LosePublished();
    InstallDesktop(nullptr);
}

void toolkit::HeadlessDesktop::MoveTo(HWND hWnd, CPoint at)
{
    const HWND hTop = GetTopLevel(hWnd);
    if (m_hUnderMouse != hTop && !IsDragging())
        InputMouseLeave(m_hUnderMouse);
    m_hUnderMouse = hTop;
    m_cursorPos = at;
    ClientToScreen(hWnd, &m_cursorPos);
    if (IsDragging())
        return StepDrag();
    InputMouseMove(hTop, ToSurface(hWnd, at), m_modifiers);
    Run();
}

// A button goes where the mouse is, so the mouse goes there first.
void toolkit::HeadlessDesktop::PutButton(HWND hWnd, CPoint at, MouseButton button, bool down)
{
    CPoint screen = at;
    ClientToScreen(hWnd, &screen);
    if (!(screen == m_cursorPos) || m_hUnderMouse != GetTopLevel(hWnd))
        MoveTo(hWnd, at);
    if (IsDragging())
        return DropOrCancel(button, down);
    InputMouseButton(GetTopLevel(hWnd), ToSurface(hWnd, at), button, down, m_modifiers);
    Run();
}

void toolkit::HeadlessDesktop::Click(HWND hWnd, CPoint at, MouseButton button)
{
    ForgetLastPress();
    Press(hWnd, at, button);
    Release(hWnd, at, button);
}

void toolkit::HeadlessDesktop::DoubleClick(HWND hWnd, CPoint at)
{
    Click(hWnd, at);
    Press(hWnd, at);
    Release(hWnd, at);
}

void toolkit::HeadlessDesktop::Wheel(HWND hWnd, CPoint at, int notches)
{
    MoveTo(hWnd, at);
    InputMouseWheel(GetTopLevel(hWnd), ToSurface(hWnd, at), notches * WHEEL_DELTA, m_modifiers);
    Run();
}

void toolkit::HeadlessDesktop::Key(UINT vkey)
{
    if (IsDragging())
        return vkey == VK_ESCAPE ? EndDrag(DROPEFFECT_NONE) : Run();
    InputKey(vkey, true, m_modifiers);
    InputKey(vkey, false, m_modifiers);
    Run();
}

void toolkit::HeadlessDesktop::Type(std::string_view utf8)
{
    while (!utf8.empty()) {
        const CodePoint c = DecodeUtf8(utf8);
        const UINT vkey = KeyOfCharacter(c.value);
        InputKey(vkey, true, m_modifiers);
        InputText(utf8.substr(0, static_cast<std::size_t>(c.bytes)));
        InputKey(vkey, false, m_modifiers);
        utf8.remove_prefix(static_cast<std::size_t>(c.bytes));
    }
    Run();
}

void toolkit::HeadlessDesktop::Advance(DWORD nMilliseconds)
{
    const DWORD end = m_ticks + nMilliseconds;
    Run();
    while (m_wakeAt && static_cast<std::int32_t>(end - *m_wakeAt) >= 0 && *m_wakeAt != m_ticks) {
        m_ticks = *m_wakeAt;
        Run();
    }
    m_ticks = end;
    Run();
}

void toolkit::HeadlessDesktop::ProcessEvents()
{
    if (m_duringWork)
        m_duringWork();
    Run();
}

void toolkit::HeadlessDesktop::Run()
{
    RunPendingMessages();
}

bool toolkit::HeadlessDesktop::RunUntil(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    for (;;) {
        {
            const std::lock_guard lock(m_mutex);
            m_bTaskPosted = false;
        }
        Run();
        if (condition())
            return true;
        std::unique_lock lock(m_mutex);
        if (!m_taskPosted.wait_until(lock, end, [this] { return m_bTaskPosted; }))
            return false;
    }
}

void toolkit::HeadlessDesktop::WakeFromThread()
{
    const std::lock_guard lock(m_mutex);
    m_bTaskPosted = true;
    m_taskPosted.notify_one();
}

void toolkit::HeadlessDesktop::Wake(std::optional<DWORD> inMilliseconds)
{
    m_wakeAt = inMilliseconds ? std::optional<DWORD>(m_ticks + *inMilliseconds) : std::nullopt;
}
