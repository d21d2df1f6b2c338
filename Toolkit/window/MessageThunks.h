// How a message's parameters become a handler's arguments: one function for each kind of handler.
#pragma once

#include "Toolkit/message/Messages.h"

class CWnd;

namespace toolkit
{

// What a handler was called with, and what it answered.
struct MessageCall
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    LRESULT result;
};

// The CWnd of a handle; made on demand, owned by the window.
TOOLKIT_API CWnd* WndFromHandle(HWND hWnd);

template <class Class, auto member>
bool CallVoid(CWnd* pWnd, MessageCall& call)
{
    (static_cast<Class*>(pWnd)->*member)();
    call.result = call.message == WM_COMMAND ? TRUE : 0;
    return true;
}

template <class Class, auto member>
bool CallCommandEx(CWnd* pWnd, MessageCall& call)
{
    call.result = TRUE;
    return (static_cast<Class*>(pWnd)->*member)() != FALSE;
}

template <class Class, auto member>
bool CallCreate(CWnd* pWnd, MessageCall& call)
{
    call.result = (static_cast<Class*>(pWnd)->*member)(reinterpret_cast<LPCREATESTRUCT>(call.lParam));
    return true;
}

template <class Class, auto member>
bool CallErase(CWnd* pWnd, MessageCall& call)
{
    call.result = (static_cast<Class*>(pWnd)->*member)(reinterpret_cast<HDC>(call.wParam));
    return true;
}

template <class Class, auto member>
bool CallSize(CWnd* pWnd, MessageCall& call)
{
    (static_cast<Class*>(pWnd)->*member)(static_cast<UINT>(call.wParam), GET_X_LPARAM(call.lParam),
                                         GET_Y_LPARAM(call.lParam));
    call.result = 0;
    return true;
}

template <class Class, auto member>
bool CallShow(CWnd* pWnd, MessageCall& call)
{
    (static_cast<Class*>(pWnd)->*member)(static_cast<BOOL>(call.wParam), static_cast<UINT>(call.lParam));
    call.result = 0;
    return true;
}

template <class Class, auto member>
bool CallFocus(CWnd* pWnd, MessageCall& call)
{
    (static_cast<Class*>(pWnd)->*member)(WndFromHandle(reinterpret_cast<HWND>(call.wParam)));
    call.result = 0;
    return true;
}

template <class Class, auto member>
bool CallMouse(CWnd* pWnd, MessageCall& call)
{
    (static_cast<Class*>(pWnd)->*member)(static_cast<UINT>(call.wParam), CPoint(call.lParam));
    call.result = 0;
    return true;
}

template <class Class, auto member>
bool CallWheel(CWnd* pWnd, MessageCall& call)
{
    call.result = (static_cast<Class*>(pWnd)->*member)(LOWORD(call.wParam), static_cast<short>(HIWORD(call.wParam)),
                                                       CPoint(call.lParam));
    return true;
}

template <class Class, auto member>
bool CallKey(CWnd* pWnd, MessageCall& call)
{
    (static_cast<Class*>(pWnd)->*member)(static_cast<UINT>(call.wParam), LOWORD(static_cast<UINT_PTR>(call.lParam)),
                                         HIWORD(static_cast<UINT_PTR>(call.lParam)));
    call.result = 0;
    return true;
}

template <class Class, auto member>
bool CallTimer(CWnd* pWnd, MessageCall& call)
{
    (static_cast<Class*>(pWnd)->*member)(static_cast<UINT_PTR>(call.wParam));
    call.result = 0;
    return true;
}

template <class Class, auto member>
bool CallContextMenu(CWnd* pWnd, MessageCall& call)
{
    (static_cast<Class*>(pWnd)->*member)(WndFromHandle(reinterpret_cast<HWND>(call.wParam)), CPoint(call.lParam));
    call.result = 0;
    return true;
}

template <class Class, auto member>
bool CallMessage(CWnd* pWnd, MessageCall& call)
{
    call.result = (static_cast<Class*>(pWnd)->*member)(call.wParam, call.lParam);
    return true;
}

// The handler may take the notification's own record instead of its head.
template <class Class, class Owner, class Result, class Record>
Result CallWithRecord(Class* pOwner, Result (Owner::*member)(Record*, LRESULT*), MessageCall& call)
{
    call.result = 0;
    return (pOwner->*member)(reinterpret_cast<Record*>(call.lParam), &call.result);
}

template <class Class, auto member>
bool CallNotify(CWnd* pWnd, MessageCall& call)
{
    CallWithRecord(static_cast<Class*>(pWnd), member, call);
    return true;
}

template <class Class, auto member>
bool CallNotifyEx(CWnd* pWnd, MessageCall& call)
{
    return CallWithRecord(static_cast<Class*>(pWnd), member, call) != FALSE;
}

} // namespace toolkit
