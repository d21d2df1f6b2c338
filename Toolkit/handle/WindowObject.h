// What a window's messages go to, and how it is kept while they do.
#pragma once

#include "Toolkit/base/Types.h"

namespace toolkit
{

struct WindowRecord;

class TOOLKIT_API MessageReceiver
{
public:
    virtual ~MessageReceiver() = default;

    virtual LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;
};

// The object that somebody has attached to a window: it gets every message first. CWnd is the one there is.
class TOOLKIT_API WindowObject : public MessageReceiver
{
public:
    HWND m_hWnd = nullptr; // NULL while there is no window
};

// Holds a window while a message of it is handled. So does whoever calls its native window directly.
class TOOLKIT_API WindowHold
{
public:
    explicit WindowHold(WindowRecord* pWindow); // NULL: holds nothing
    explicit WindowHold(HWND hWnd);
    ~WindowHold();
    WindowHold(const WindowHold&) = delete;
    WindowHold& operator=(const WindowHold&) = delete;

    MessageReceiver* Native() const; // its NativeWindow

private:
    WindowRecord* const m_pWindow;
};

} // namespace toolkit
