#include "Toolkit/message/Dispatch.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/handle/WindowGeometry.h"

namespace
{
LRESULT AfterException(toolkit::WindowRecord& window, UINT message, CException& exception)
{
    switch (message) {
    case WM_NCCREATE:
        return FALSE;
    case WM_CREATE:
        return -1;
    case WM_PAINT:
        window.ValidateAll(); // else it would be asked to paint, and fail, for ever
        return 0;
    default:
        exception.ReportError();
        return message == WM_COMMAND;
    }
}
} // namespace

LRESULT toolkit::CallWindow(WindowRecord& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowHold hold(&window);
    try {
        MessageReceiver& receiver = window.pWnd ? *window.pWnd : *window.pNative;
        return receiver.HandleMessage(message, wParam, lParam);
    } catch (CException& exception) {
        return AfterException(window, message, exception);
    }
}

LRESULT SendMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    toolkit::WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    return pWindow ? toolkit::CallWindow(*pWindow, message, wParam, lParam) : 0;
}

void toolkit::SendSize(HWND hWnd)
{
    if (const WindowRecord* pWindow = FindRecord(hWnd)) {
        const CSize size = ClientBox(*pWindow).Size();
        SendMessage(hWnd, WM_SIZE, 0, MAKELPARAM(size.cx, size.cy));
    }
}
