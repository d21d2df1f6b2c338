#pragma once

#include "Kernel/StubBaseInterface.h"

// The kernel object, as its callers see it: one operation, at the ninth position.
class KERNEL_API IKernel : public virtual CStubBaseInterface
{
public:
    virtual void KernelReserved1() {}
    virtual void KernelReserved2() {}
    virtual void KernelReserved3() {}
    virtual void KernelReserved4() {}
    virtual void KernelReserved5() {}
    virtual void KernelReserved6() {}
    virtual void KernelReserved7() {}
    virtual void KernelReserved8() {}
    // Makes an object of the named class and gives the asked interface of it, with a reference. FALSE, and *ppOut
    // is NULL, when the class is unknown, makes no object, or its objects do not have the interface.
    virtual BOOL CreateObject(const char* pszClassName, void** ppOut, DWORD dwInterfaceId) = 0;

protected:
    ~IKernel() = default;
};
