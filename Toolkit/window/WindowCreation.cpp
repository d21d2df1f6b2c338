#include "Toolkit/window/WindowCreation.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/window/NativeWindow.h"
#include "Toolkit/window/WindowDestruction.h"
#include "Toolkit/window/WindowSettings.h"
#include "Toolkit/window/WndAccess.h"

namespace
{
using toolkit::WindowRecord;

// The record, above its siblings, with its class's behaviour; NULL when parent or class are not there. Raises
// CMemoryException.
HWND AddWindow(const CREATESTRUCT& cs, CWnd* pOwner)
{
    WindowRecord* pParent = toolkit::FindRecord(cs.hwndParent);
    const toolkit::NativeWindowFactory* pFactory = toolkit::FindWindowClass(cs.lpszClass);
    const bool bTop = !cs.hwndParent && !(cs.style & WS_CHILD);
    const bool bHasPlace = bTop || (pParent && toolkit::IsAlive(*pParent));
    if (!bHasPlace || !pFactory)
        return nullptr;

    const HWND hWnd = toolkit::AddRecord(std::make_unique<WindowRecord>(cs), pParent);
    WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return nullptr;
    try {
        pWindow->pNative = (*pFactory)(hWnd);
    } catch (...) {
        toolkit::RemoveRecord(hWnd);
        throw;
    }
    pWindow->pWnd = pOwner;
    if (pOwner)
        pOwner->m_hWnd = hWnd;
    return hWnd;
}

bool AcceptsCreation(HWND hWnd, CREATESTRUCT cs)
{
    const auto lParam = reinterpret_cast<LPARAM>(&cs);
    if (!SendMessage(hWnd, WM_NCCREATE, 0, lParam)) {
        toolkit::FinishDestruction(hWnd); // it never was created, so there is no WM_DESTROY
        return false;
    }
    if (SendMessage(hWnd, WM_CREATE, 0, lParam) == -1) {
        DestroyWindow(hWnd);
        return false;
    }
    return true;
}
} // namespace

HWND toolkit::MakeWindow(const CREATESTRUCT& cs, CWnd* pOwner)
{
    HWND hWnd = nullptr;
    try {
        hWnd = AddWindow(cs, pOwner);
    } catch (const CMemoryException&) {
        // There is no window, as when it refuses.
    }
    if (!hWnd) {
        if (pOwner)
            WndAccess::PostNcDestroy(*pOwner);
        return nullptr;
    }
    if (!AcceptsCreation(hWnd, cs))
        return nullptr;

    WindowRecord* pWindow = FindRecord(hWnd);
    if (pWindow && pWindow->IsTop()) {
        pWindow->bKnownToDesktop = true;
        CurrentDesktop().WindowCreated(hWnd);
    }
    SendSize(hWnd);
    SendMessage(hWnd, WM_MOVE, 0, MAKELPARAM(cs.x, cs.y));
    if (cs.style & WS_VISIBLE)
        ShowWindow(hWnd, SW_SHOW);
    return IsWindow(hWnd) ? hWnd : nullptr;
}

HWND CreateWindowEx(DWORD exStyle, LPCSTR pszClass, LPCSTR pszName, DWORD style, int x, int y, int cx, int cy,
                    HWND hParent, UINT nID, void* lpParam)
{
    return toolkit::MakeWindow({lpParam, hParent, cy, cx, y, x, style, pszName, pszClass, exStyle, nID}, nullptr);
}
