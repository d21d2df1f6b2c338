#include "Toolkit/window/WndAccess.h"

bool WndAccess::Dispatch(CWnd& wnd, UINT message, UINT code, UINT id, toolkit::MessageCall& call)
{
    const toolkit::MessageEntry* pEntry = toolkit::FindMessageEntry(wnd.GetMessageMap(), message, code, id);
    return pEntry && pEntry->handler(&wnd, call);
}

bool WndAccess::Reflect(HWND hChild, toolkit::MessageCall& call, UINT code)
{
    CWnd* pChild = CWnd::FromHandlePermanent(hChild);
    return pChild && Dispatch(*pChild, WM_REFLECT_BASE + call.message, code, 0, call);
}
