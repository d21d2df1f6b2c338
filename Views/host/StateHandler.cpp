#include "Views/host/StateHandler.h"

#include "Views/host/InterfaceIds.h"

void CStateHandler::GetInterface(DWORD id, void** out)
{
    *out = nullptr;
    if (id == IID_IAEStateHandler)
        *out = static_cast<IAEStateHandler*>(this);
    else if (id == STUB_BASE_INTERFACE_ID)
        *out = static_cast<CStubBaseInterface*>(this);
    if (*out)
        AddRef(); // which a derived class may count
}

BOOL CStateHandler::OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount)
{
    if (pCount && !pairs)
        *pCount = 0;
    return pCount && pairs;
}
