#include "Toolkit/exchange/DropSite.h"

#include "Toolkit/window/WindowApi.h"

#include <map>

namespace
{
std::map<HWND, toolkit::DropSite*> s_sites;
}

bool toolkit::RegisterDropSite(HWND hWnd, DropSite* pSite)
{
    return IsWindow(hWnd) && s_sites.emplace(hWnd, pSite).second;
}

void toolkit::RevokeDropSite(HWND hWnd)
{
    s_sites.erase(hWnd);
}

void toolkit::ForgetDropSite(HWND hWnd)
{
    if (DropSite* const pSite = FindDropSite(hWnd))
        pSite->WindowGone();
    RevokeDropSite(hWnd);
}

toolkit::DropSite* toolkit::FindDropSite(HWND hWnd)
{
    const auto found = s_sites.find(hWnd);
    return found == s_sites.end() ? nullptr : found->second;
}
