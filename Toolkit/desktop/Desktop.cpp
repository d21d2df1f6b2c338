#include "Toolkit/desktop/Desktop.h"

#include "Toolkit/base/Ticks.h"
#include "Toolkit/desktop/MessageBoxTypes.h"

namespace
{
// Stands in while none is installed, so that windows may go after their desktop.
class NoDesktop : public toolkit::Desktop
{
public:
    DWORD Ticks() override { return toolkit::SystemTicks(); }
    void WindowCreated(HWND) override {}
    void WindowChanged(HWND) override {}
    void WindowPlaced(HWND) override {}
    void WindowDestroyed(HWND) override {}
    void Present(HWND, const toolkit::Surface&, const CRect&) override {}
    void Wake(std::optional<DWORD>) override {}
    void WakeFromThread() override {}
    int ShowMessageBox(HWND, LPCSTR, LPCSTR, UINT) override { return IDCANCEL; }
    UINT TrackMenu(HWND, const std::vector<toolkit::MenuItem>&, CPoint) override { return 0; }
    void ShowCursor(toolkit::Cursor) override {}
    BOOL PublishClipboard(std::shared_ptr<toolkit::OfferedData>) override { return TRUE; }
    std::shared_ptr<toolkit::OfferedData> FetchClipboard() override { return nullptr; }
    DROPEFFECT RunDrag(std::shared_ptr<toolkit::OfferedData>, DROPEFFECT) override { return DROPEFFECT_NONE; }
};

NoDesktop s_none;
toolkit::Desktop* s_pDesktop = &s_none;
} // namespace

void toolkit::SetCurrentDesktop(Desktop* pDesktop)
{
    s_pDesktop = pDesktop ? pDesktop : &s_none;
}

toolkit::Desktop& toolkit::CurrentDesktop()
{
    return *s_pDesktop;
}
