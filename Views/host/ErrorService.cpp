#include "Kernel/Kernel.h"
#include "Toolkit/base/String.h"
#include "Views/host/Services.h"

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
