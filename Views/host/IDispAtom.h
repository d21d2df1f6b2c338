#pragma once

#include "Kernel/StubBaseInterface.h"
#include "Views/host/Api.h"

// An atom that is shown under another name than its own.
class VIEWS_API IDispAtom : public virtual CStubBaseInterface
{
public:
    virtual BOOL GetDisplayName(char* pBuffer, DWORD* pLength) = 0; // as IAtom::GetName

protected:
    ~IDispAtom() = default;
};
