#include "Toolkit/message/Dispatch.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/window/NativeWindow.h"
#include "Toolkit/window/WindowApi.h"
#include "Toolkit/window/WndAccess.h"

namespace
{
LRESULT AfterException(HWND hWnd, UINT message, CException& exception)
{
    switch (message) {
    case WM_NCCREATE:
        return FALSE;
    case WM_CREATE:
        return -1;
    case WM_PAINT:
        ValidateRect(hWnd, nullptr); // else it would be asked to paint, and fail, for ever
        return 0;
    default:
        exception.ReportError();
        return message == WM_COMMAND;
    }
}
} // namespace

LRESULT toolkit::CallWindow(WindowRecord& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowHold hold(window);
    try {
        if (window.pWnd)
            return WndAccess::CallWindowProc(*window.pWnd, message, wParam, lParam);
        if (window.pNative)
            return window.pNative->HandleMessage(message, wParam, lParam);
        return DefWindowProc(window.hWnd, message, wParam, lParam);
    } catch (CException& exception) {
        return AfterException(window.hWnd, message, exception);
    }
}

LRESULT SendMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    toolkit::WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    return pWindow ? toolkit::CallWindow(*pWindow, message, wParam, lParam) : 0;
}
