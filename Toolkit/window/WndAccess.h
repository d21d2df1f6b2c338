// The window manager's way to what CWnd keeps to itself.
#pragma once

#include "Toolkit/window/Wnd.h"

struct WndAccess
{
    static void PostNcDestroy(CWnd& wnd) { wnd.PostNcDestroy(); }

    // A child's notification or command on its way to the parent. True when the child's own class took it.
    static bool Reflect(HWND hChild, toolkit::MessageCall& call, UINT code);
    static bool Dispatch(CWnd& wnd, UINT message, UINT code, UINT id, toolkit::MessageCall& call);
};
