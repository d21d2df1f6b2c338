// Inside the library.
#pragma once

#include "Views/host/IAtomContainer.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/StubRef.h"

namespace views
{

// An atom and the container it is shown in, kept alive while the editor is told about them. Both empty without an atom.
struct HeldPair
{
    CStubRef<IAtom> pAtom;
    CStubRef<IAtomContainer> pContainer;

    static HeldPair Share(IAtom* p, IAtomContainer* pIn)
    {
        return {CStubRef<IAtom>::Share(p), CStubRef<IAtomContainer>::Share(pIn)};
    }
    explicit operator bool() const { return static_cast<bool>(pAtom); }

    // Has the editor ask or tell all about it. TRUE, too, without an editor or an atom.
    BOOL Notify(IAtomEditor* pEditor, IAEStateHandler* pSender, AEStateOperation operation) const
    {
        return !pEditor || !pAtom || pEditor->NotifyHandlers(pSender, operation, pAtom.Get(), pContainer.Get(), 0);
    }

    // Hands both references to the caller's pair. What it held is released last: that may re-enter.
    void MoveTo(OBJPAIR& pair)
    {
        const auto pFormerAtom = CStubRef<IAtom>::Adopt(std::exchange(pair.pAtom, pAtom.Detach()));
        const auto pFormer = CStubRef<IAtomContainer>::Adopt(std::exchange(pair.pContainer, pContainer.Detach()));
    }
};

} // namespace views
