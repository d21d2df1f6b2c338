#pragma once

#include "Kernel/StubBaseInterface.h"
#include "Views/host/Api.h"

// Marks an atom that, without a container, counts as the top of a hierarchy.
class VIEWS_API ICharacterLibrary : public virtual CStubBaseInterface
{
protected:
    ~ICharacterLibrary() = default;
};
