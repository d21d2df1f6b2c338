// The name to show of an atom whose own name cannot be shown as it is.
#pragma once

#include "Views/host/host.h"

#include <string>

namespace editor
{

// An interface of the atom that it belongs to, made when it is asked for: most names need none.
class CDisplayName final : public IDispAtom
{
public:
    // With one reference.
    CDisplayName(IAtom* pAtom, std::string shown);

    void AddRef() override { ++m_nRefs; }
    void Release() override;
    void GetInterface(DWORD id, void** out) override;

    BOOL GetDisplayName(char* pBuffer, DWORD* pLength) override;

private:
    ~CDisplayName();

    const CStubRef<IAtom> m_pAtom;
    const std::string m_shown;
    int m_nRefs = 1;
};

// Answers a name by the name protocol. FALSE, and *pLength tells the size needed, for a buffer that is too small.
BOOL GiveName(std::string_view name, char* pBuffer, DWORD* pLength);

} // namespace editor
