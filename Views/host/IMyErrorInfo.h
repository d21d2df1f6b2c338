#pragma once

#include "Kernel/StubBaseInterface.h"
#include "Views/host/Api.h"

// Why an operation of an object failed; handed to the service that shows errors.
class VIEWS_API IMyErrorInfo : public virtual CStubBaseInterface
{
protected:
    ~IMyErrorInfo() = default;
};
