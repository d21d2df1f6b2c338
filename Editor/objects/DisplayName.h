// The name to show of an atom whose own name cannot be shown as it is.
#pragma once

#include "HostKit/base/Counted.h"
#include "Views/host/host.h"

#include <string>

namespace editor
{

// An interface of the atom that it belongs to, made when it is asked for: most names need none.
class CDisplayName final : public hostkit::Counted, public IDispAtom
{
public:
    CDisplayName(IAtom* pAtom, std::string shown) : m_pAtom(CStubRef<IAtom>::Share(pAtom)), m_shown(std::move(shown)) {}

    void GetInterface(DWORD id, void** out) override;

    BOOL GetDisplayName(char* pBuffer, DWORD* pLength) override;

private:
    const CStubRef<IAtom> m_pAtom;
    const std::string m_shown;
};

} // namespace editor
