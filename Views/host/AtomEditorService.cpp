#include "Kernel/Kernel.h"
#include "Views/host/Services.h"

IAtomEditor* GetAtomEditor()
{
    static SERVICEREC* const s_pService = SRVN_GetUniqueServiceID(views::kAtomEditorService);
    IAtomEditor* pEditor = nullptr;
    return CallService(s_pService, &pEditor, sizeof pEditor, 0) ? pEditor : nullptr;
}
