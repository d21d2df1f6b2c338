#include "Views/host/inside/OfferSave.h"

#include "Views/host/IAtom.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/StubRef.h"
#include "Views/host/TopLevelAtom.h"

bool views::OfferSave()
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pEditor)
        return true;
    CStubRef<IAtom> pActive, pTop;
    pEditor->GetActiveAtom(pActive.Receive(), IID_IAtom);
    if (!GetTopLevelAtom(pActive.Get(), pTop.Receive(), IID_IAtom))
        return true;
    return pEditor->NotifyHandlers(nullptr, &IAEStateHandler::PreSaveAtom, pTop.Get(), nullptr, 0) != FALSE;
}
