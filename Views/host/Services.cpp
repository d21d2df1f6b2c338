#include "Views/host/Services.h"

#include "Kernel/Kernel.h"
#include "Toolkit/base/String.h"
#include "Views/host/inside/ServiceCalls.h"

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

IAtomEditor* GetAtomEditor()
{
    static SERVICEREC* const s_pService = SRVN_GetUniqueServiceID(views::kAtomEditorService);
    IAtomEditor* pEditor = nullptr;
    return CallService(s_pService, &pEditor, sizeof pEditor, 0) ? pEditor : nullptr;
}

void ShowAtomError(HWND owner, UINT nCaptionID, IMyErrorInfo* error)
{
    CString strCaption;
    strCaption.LoadString(nCaptionID);
    views::ShowAtomError(owner, strCaption.GetString(), error);
}

void views::ShowAtomError(HWND owner, LPCSTR pszCaption, IMyErrorInfo* error)
{
    static SERVICEREC* const s_pService = SRVN_GetUniqueServiceID(kErrorService);
    ERRORREQUEST request{owner, pszCaption, error};
    CallService(s_pService, &request, sizeof request, 0);
}
