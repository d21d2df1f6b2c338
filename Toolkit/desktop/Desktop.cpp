#include "Toolkit/desktop/Desktop.h"

#include "Toolkit/base/Ticks.h"
#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/message/InputQueue.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/window/DesktopNews.h"

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

DWORD DesktopTicks()
{
    return s_pDesktop->Ticks();
}

bool IsKnownToDesktop(HWND hWnd)
{
    const toolkit::WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    return pWindow && pWindow->bKnownToDesktop;
}
} // namespace

void toolkit::InstallDesktop(Desktop* pDesktop)
{
    AcceptTasks(pDesktop);
    DropTasks();
    ResetInput();
    s_pDesktop = pDesktop ? pDesktop : &s_none;
    SetTickSource(pDesktop ? &DesktopTicks : nullptr);
    InstallTextEngine(pDesktop ? &pDesktop->GetTextEngine() : nullptr);
    UpdateWake();
}

toolkit::Desktop& toolkit::CurrentDesktop()
{
    return *s_pDesktop;
}

void toolkit::TellDesktopOfCreation(WindowRecord& top)
{
    top.bKnownToDesktop = true;
    CurrentDesktop().WindowCreated(top.hWnd);
}

void toolkit::TellDesktopOfChange(HWND hWnd)
{
    if (IsKnownToDesktop(hWnd))
        CurrentDesktop().WindowChanged(hWnd);
}

void toolkit::TellDesktopOfPlace(HWND hWnd)
{
    if (IsKnownToDesktop(hWnd))
        CurrentDesktop().WindowPlaced(hWnd);
}

void toolkit::TellDesktopOfDestruction(WindowRecord& top)
{
    if (std::exchange(top.bKnownToDesktop, false))
        CurrentDesktop().WindowDestroyed(top.hWnd);
}
