// A desktop of one's own, as small as it can be: windows in a terminal. Two pixels are a character, the upper and the
// lower half of a block in their colours; where the output is no terminal, letters in black and white.
//
//     own_desktop             arrows and Enter walk through the tree, q ends
//     own_desktop < KEYS      the same from a file, and what it comes to (docs/porting.md says what is left out)
#include "HostKit/HostKit.h"
#include "Toolkit/base/Ticks.h"
#include "Toolkit/message/Input.h"
#include "Toolkit/paint/WindowDC.h"
#include "Toolkit/run/Run.h"
#include "Views/tree/tree.h"

#include <cstdio>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace
{

class TerminalDesktop : public toolkit::Desktop
{
public:
    TerminalDesktop() : m_bColors(isatty(STDOUT_FILENO) != 0)
    {
        toolkit::InstallDesktop(this);
        m_bRaw = tcgetattr(STDIN_FILENO, &m_former) == 0;
        termios raw = m_former;
        raw.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
        if (m_bRaw)
            tcsetattr(STDIN_FILENO, TCSANOW, &raw);
    }
    ~TerminalDesktop() override
    {
        if (m_bRaw)
            tcsetattr(STDIN_FILENO, TCSANOW, &m_former);
        toolkit::InstallDesktop(nullptr);
    }
    TerminalDesktop(const TerminalDesktop&) = delete;
    TerminalDesktop& operator=(const TerminalDesktop&) = delete;

    // The loop: what waits is handled, then what is new is shown, then the user is waited for, or the next timer.
    int Run()
    {
        for (toolkit::RunPendingMessages(); !m_status; toolkit::RunPendingMessages()) {
            if (m_bColors)
                Show();
            pollfd input{STDIN_FILENO, POLLIN, 0};
            if (poll(&input, 1, m_wakeIn ? static_cast<int>(*m_wakeIn) : -1) > 0)
                HandleInput();
        }
        Show();
        return *m_status;
    }

    DWORD Ticks() override { return toolkit::SystemTicks(); }
    void WindowCreated(HWND) override {}
    void WindowChanged(HWND hTop) override
    {
        if (IsWindowVisible(hTop) && m_hShown != hTop)
            toolkit::InputActivate(m_hShown = hTop, true); // or no window has the keys
    }
    void WindowPlaced(HWND) override {}
    void WindowDestroyed(HWND hTop) override { m_hShown = m_hShown == hTop ? nullptr : m_hShown; }
    void Present(HWND hTop, const toolkit::Surface& surface, const CRect&) override
    {
        if (hTop == m_hShown)
            m_picture = surface;
    }
    void Wake(std::optional<DWORD> inMilliseconds) override { m_wakeIn = inMilliseconds; }
    void WakeFromThread() override {} // this program has one thread
    void Quit(int nStatus) override { m_status = nStatus; }

    // What a terminal of this kind has not: the answers are those of a user who declines.
    int ShowMessageBox(HWND, LPCSTR, LPCSTR, UINT) override { return IDCANCEL; }
    UINT TrackMenu(HWND, const std::vector<toolkit::MenuItem>&, CPoint) override { return 0; }
    void ShowCursor(toolkit::Cursor) override {}
    BOOL PublishClipboard(std::shared_ptr<toolkit::OfferedData>) override { return FALSE; }
    std::shared_ptr<toolkit::OfferedData> FetchClipboard() override { return nullptr; }
    DROPEFFECT RunDrag(std::shared_ptr<toolkit::OfferedData>, DROPEFFECT) override { return DROPEFFECT_NONE; }

private:
    void HandleInput()
    {
        char c = 0;
        if (read(STDIN_FILENO, &c, 1) != 1 || c == 'q')
            return Quit(0);
        if (c == '\033' && read(STDIN_FILENO, &c, 1) == 1 && c == '[' && read(STDIN_FILENO, &c, 1) == 1)
            Press(c == 'A' ? VK_UP : c == 'B' ? VK_DOWN : c == 'C' ? VK_RIGHT : VK_LEFT);
        else if (c == '\n')
            Press(VK_RETURN);
    }
    static void Press(UINT vkey)
    {
        toolkit::InputKey(vkey, true, {});
        toolkit::InputKey(vkey, false, {});
    }

    void Show() const
    {
        std::printf("%s", m_bColors ? "\033[H" : "");
        for (int y = 0; y + 1 < m_picture.Height(); y += 2) {
            for (int x = 0; x < m_picture.Width(); ++x)
                ShowTwo(toolkit::ToColor(m_picture.At(x, y)), toolkit::ToColor(m_picture.At(x, y + 1)));
            std::puts(m_bColors ? "\033[0m" : "");
        }
        std::fflush(stdout);
    }
    void ShowTwo(COLORREF upper, COLORREF lower) const
    {
        if (m_bColors)
            return void(std::printf("\033[38;2;%d;%d;%dm\033[48;2;%d;%d;%dm\u2580", GetRValue(upper), GetGValue(upper),
                                    GetBValue(upper), GetRValue(lower), GetGValue(lower), GetBValue(lower)));
        const auto isDark = [](COLORREF color) { return GetRValue(color) + GetGValue(color) + GetBValue(color) < 384; };
        std::putchar(" '.#"[isDark(upper) + 2 * isDark(lower)]);
    }

    const bool m_bColors;
    bool m_bRaw = false;
    termios m_former{};
    HWND m_hShown = nullptr;
    toolkit::Surface m_picture;
    std::optional<DWORD> m_wakeIn;
    std::optional<int> m_status;
};

} // namespace

int main()
{
    TerminalDesktop desktop;
    hostkit::Host host("Terminal");
    const auto pZoo = hostkit::Make<hostkit::CContainer>("Zoo");
    pZoo->Add(hostkit::Make<hostkit::CContainer>("Birds"))->Add(hostkit::Make<hostkit::CAtom>("Owl"));
    pZoo->Add(hostkit::Make<hostkit::CContainer>("Cats"))->Add(hostkit::Make<hostkit::CAtom>("Lynx"));

    CWnd window;
    CObjectsTree tree;
    if (!window.CreateEx(0, "", "Zoo", WS_OVERLAPPED, CRect(0, 0, 100, 80), nullptr, 0) || !tree.Create(&window))
        return 1;
    tree.MoveWindow(CRect(0, 0, 100, 80));
    tree.ShowWindow(SW_SHOW);
    host.GetEditor().AddTop(pZoo.Get());
    window.ShowWindow(SW_SHOW);
    tree.SetFocus();
    tree.SetRootAtom(pZoo.Get());
    return desktop.Run();
}
