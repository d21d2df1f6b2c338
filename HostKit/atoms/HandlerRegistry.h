// Who wants to hear of what happens to atoms.
#pragma once

#include "HostKit/base/Api.h"
#include "Views/host/IAEStateHandler.h"

#include <vector>

namespace hostkit
{

// Handlers may come and go while they are being called: one that goes is not called any more, one that comes is
// called from the next broadcast on.
class HOSTKIT_API HandlerRegistry
{
public:
    DWORD Register(HWND hWnd, IAEStateHandler* pHandler); // a cookie, never 0
    void Unregister(DWORD dwCookie);

    // Calls the operation on all handlers but the sender. For the operations that ask, FALSE when some handler
    // said FALSE; for OnAtomRename, TRUE as soon as a handler has begun to rename; else TRUE.
    BOOL Call(IAEStateHandler* pSender, AEStateOperation operation, IAtom* pAtom, IAtomContainer* pContainer);

    bool Contains(IAEStateHandler* pHandler) const;
    // Whose window is hWnd or one of its ancestors below hEnd; NULL: none.
    IAEStateHandler* FindByWindow(HWND hWnd, HWND hEnd) const;

private:
    struct Registration
    {
        DWORD dwCookie;
        HWND hWnd;
        IAEStateHandler* pHandler; // NULL once it is unregistered
    };
    class Calling; // keeps the places while handlers are called

    std::vector<Registration> m_registrations;
    DWORD m_dwLastCookie = 0;
    int m_nCalling = 0;
};

} // namespace hostkit
