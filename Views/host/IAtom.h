#pragma once

#include "Kernel/StubBaseInterface.h"
#include "Views/host/Api.h"

// An object of the editor.
//
// Names are asked for twice: with a NULL buffer, when *pLength receives the size of buffer needed, its terminating
// zero included, and again with a buffer of that size. FALSE: the name is not available.
class VIEWS_API IAtom : public virtual CStubBaseInterface
{
public:
    virtual void AtomReserved1() {}
    virtual DWORD GetID() = 0; // tells the members of a container apart
    virtual void AtomReserved3() {}
    virtual BOOL GetName(char* pBuffer, DWORD* pLength) = 0;
    virtual void AtomReserved5() {}
    // What holds this atom, as the asked interface (IAtomContainer, IAtom, IPhase). FALSE and NULL at the top.
    virtual BOOL GetContainer(void** ppOut, DWORD dwInterfaceId) = 0;
    virtual void AtomReserved7() {}
    virtual BOOL IsModified() = 0; // has it changes that are not saved?

protected:
    ~IAtom() = default;
};
