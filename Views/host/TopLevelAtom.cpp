#include "Views/host/TopLevelAtom.h"

#include "Views/host/IAtom.h"
#include "Views/host/ICharacterLibrary.h"
#include "Views/host/StubRef.h"

namespace
{

CStubRef<IAtom> ContainerOf(IAtom* pAtom)
{
    CStubRef<IAtom> pContainer;
    pAtom->GetContainer(pContainer.Receive(), IID_IAtom);
    return pContainer;
}

} // namespace

BOOL GetTopLevelAtom(IAtom* pAtom, void** out, DWORD interfaceId)
{
    if (!pAtom || !out)
        return FALSE;
    *out = nullptr;

    CStubRef<IAtom> pTop = ContainerOf(pAtom);
    if (!pTop) {
        if (CStubRef<ICharacterLibrary>::From(pAtom))
            static_cast<CStubBaseInterface*>(pAtom)->GetInterface(interfaceId, out);
        return *out != nullptr;
    }
    while (CStubRef<IAtom> pAbove = ContainerOf(pTop.Get()))
        pTop = std::move(pAbove);
    static_cast<CStubBaseInterface*>(pTop.Get())->GetInterface(interfaceId, out);
    return *out != nullptr;
}
