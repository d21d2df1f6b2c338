#include "Toolkit/window/DesktopNews.h"

#include "Toolkit/desktop/Desktop.h"

#include <utility>

namespace
{
bool IsKnownToDesktop(HWND hWnd)
{
    const toolkit::WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    return pWindow && pWindow->bKnownToDesktop;
}
} // namespace

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
