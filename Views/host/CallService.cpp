#include "Views/host/Services.h"

// The first look at the provider saves the lock where no one would serve; between it and the lock the provider
// may have gone, so it is looked at again.
BOOL CallService(SERVICEREC* rec, void* buffer, DWORD size, DWORD extra)
{
    if (!rec->provider)
        return FALSE;

    const CReadLock lock(rec->lock);
    SERVICEPROVIDER* const pProvider = rec->provider;
    return pProvider ? pProvider->pTable->pfnServiceProc(pProvider, buffer, size, extra) : FALSE;
}
