// How a message's parameters become a handler's arguments: one function for each kind of handler.
#pragma once

#include "Toolkit/message/Messages.h"
#include "Toolkit/window/MessageParam.h"

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

template <class Class, auto member>
bool CallMessage(CWnd* pWnd, MessageCall& call)
{
    call.result = CallHandler<member>(static_cast<Class&>(*pWnd), call.wParam, call.lParam);
    return true;
}

template <class Class, auto member>
bool CallCommand(CWnd* pWnd, MessageCall& call)
{
    (static_cast<Class*>(pWnd)->*member)();
    call.result = TRUE;
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
bool CallSize(CWnd* pWnd, MessageCall& call)
{
    (static_cast<Class*>(pWnd)->*member)(static_cast<UINT>(call.wParam), GET_X_LPARAM(call.lParam),
                                         GET_Y_LPARAM(call.lParam));
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
