#include "Editor/services/StateHandler.h"

namespace editor
{

void CStateHandler::GetInterface(DWORD id, void** out)
{
    *out = id == IID_IAEStateHandler      ? static_cast<void*>(static_cast<IAEStateHandler*>(this))
           : id == STUB_BASE_INTERFACE_ID ? static_cast<CStubBaseInterface*>(this)
                                          : nullptr;
}

BOOL CStateHandler::OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount)
{
    if (pCount && !pairs)
        *pCount = 0;
    return pCount && pairs;
}

} // namespace editor
