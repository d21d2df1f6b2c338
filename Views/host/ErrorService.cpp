#include "Kernel/Kernel.h"
#include "Toolkit/base/String.h"
#include "Views/host/Services.h"

void ShowAtomError(HWND owner, UINT nCaptionID, IMyErrorInfo* error)
{
    static SERVICEREC* const s_pService = SRVN_GetUniqueServiceID("ShowErrorSv");
    CString strCaption;
    strCaption.LoadString(nCaptionID);
    ERRORREQUEST request{owner, strCaption, error};
    CallService(s_pService, &request, sizeof request, 0);
}
