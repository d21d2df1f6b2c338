#include "Toolkit/handle/DropSite.h"

#include "Toolkit/handle/WindowRecord.h"

bool toolkit::RegisterDropSite(HWND hWnd, DropSite* pSite)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    const bool bFree = pWindow && !pWindow->pDropSite;
    if (bFree)
        pWindow->pDropSite = pSite;
    return bFree;
}

void toolkit::RevokeDropSite(HWND hWnd)
{
    if (WindowRecord* pWindow = FindRecord(hWnd))
        pWindow->pDropSite = nullptr;
}

toolkit::DropSite* toolkit::FindDropSite(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow ? pWindow->pDropSite : nullptr;
}
