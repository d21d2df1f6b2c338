// Tells double clicks from single ones.
#pragma once

#include "Toolkit/message/Input.h"

TOOLKIT_API UINT GetDoubleClickTime(); // milliseconds, as the desktop says

namespace toolkit
{

inline constexpr int kDoubleClickDistance = 4; // pixels each way

class DoubleClick
{
public:
    // Is this press the second of a double click? The third of three is a first one again.
    bool IsSecond(HWND hWnd, MouseButton button, CPoint screen, DWORD time);
    void Forget() { m_hWnd = nullptr; }

private:
    HWND m_hWnd = nullptr; // of the last press that was not a second one
    MouseButton m_button = MouseButton::Left;
    CPoint m_at;
    DWORD m_time = 0;
};

} // namespace toolkit
