#include "Editor/objects/DisplayName.h"

#include "HostKit/LiveObjects.h"

#include <algorithm>

namespace editor
{

CDisplayName::CDisplayName(IAtom* pAtom, std::string shown)
    : m_pAtom(CStubRef<IAtom>::Share(pAtom)), m_shown(std::move(shown))
{
    ++g_nLiveObjects;
}

CDisplayName::~CDisplayName()
{
    --g_nLiveObjects;
}

void CDisplayName::Release()
{
    if (--m_nRefs == 0)
        delete this;
}

void CDisplayName::GetInterface(DWORD id, void** out)
{
    if (id != IID_IDispAtom)
        return static_cast<CStubBaseInterface*>(m_pAtom.Get())->GetInterface(id, out);
    *out = static_cast<IDispAtom*>(this);
    AddRef();
}

BOOL CDisplayName::GetDisplayName(char* pBuffer, DWORD* pLength)
{
    return GiveName(m_shown, pBuffer, pLength);
}

BOOL GiveName(std::string_view name, char* pBuffer, DWORD* pLength)
{
    if (!pLength)
        return FALSE;
    const DWORD room = *pLength;
    *pLength = static_cast<DWORD>(name.size() + 1);
    if (!pBuffer)
        return TRUE;
    if (room < *pLength)
        return FALSE;
    *std::ranges::copy(name, pBuffer).out = '\0'; // a name left empty by want of memory has no bytes to copy from
    return TRUE;
}

} // namespace editor
