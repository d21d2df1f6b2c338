#include "Editor/objects/DisplayName.h"

#include "HostKit/base/Names.h"

namespace editor
{

void CDisplayName::GetInterface(DWORD id, void** out)
{
    if (id != IID_IDispAtom)
        return static_cast<CStubBaseInterface*>(m_pAtom.Get())->GetInterface(id, out);
    *out = static_cast<IDispAtom*>(this);
    AddRef();
}

BOOL CDisplayName::GetDisplayName(char* pBuffer, DWORD* pLength)
{
    return hostkit::GiveName(m_shown, pBuffer, pLength);
}

} // namespace editor
