#include "Toolkit/focus/Capture.h"

#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/message/Dispatch.h"

#include <utility>

namespace
{
HWND s_hCapture = nullptr;

HWND MoveCapture(HWND hWnd)
{
    const HWND hFormer = std::exchange(s_hCapture, hWnd);
    if (hFormer && hFormer != hWnd)
        SendMessage(hFormer, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(hWnd));
    return hFormer;
}
} // namespace

HWND SetCapture(HWND hWnd)
{
    return IsWindow(hWnd) ? MoveCapture(hWnd) : nullptr;
}

HWND GetCapture()
{
    return s_hCapture;
}

BOOL ReleaseCapture()
{
    return MoveCapture(nullptr) != nullptr;
}

void toolkit::ReleaseCaptureWithin(HWND hWnd)
{
    if (s_hCapture && (s_hCapture == hWnd || IsChild(hWnd, s_hCapture)))
        ReleaseCapture();
}

void toolkit::ForgetCapture(HWND hWnd)
{
    if (s_hCapture == hWnd)
        s_hCapture = nullptr;
}
