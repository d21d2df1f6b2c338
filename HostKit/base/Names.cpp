#include "HostKit/base/Names.h"

#include "Views/host/IDispAtom.h"
#include "Views/host/StubRef.h"

#include <algorithm>

namespace hostkit
{
namespace
{

template <class Source>
std::string Read(Source* pSource, BOOL (Source::*pfnGet)(char*, DWORD*))
{
    DWORD length = 0;
    (pSource->*pfnGet)(nullptr, &length);
    std::string name(length, '\0');
    if (!(pSource->*pfnGet)(name.data(), &length))
        return {};
    return name.substr(0, name.find('\0'));
}

} // namespace

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

std::string NameOf(IAtom* pAtom)
{
    return Read(pAtom, &IAtom::GetName);
}

std::string ShownNameOf(IAtom* pAtom)
{
    const auto pShown = CStubRef<IDispAtom>::From(pAtom);
    return pShown ? Read(pShown.Get(), &IDispAtom::GetDisplayName) : NameOf(pAtom);
}

} // namespace hostkit
