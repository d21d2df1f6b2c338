#pragma once

#include "Kernel/StubBaseInterface.h"
#include "Views/host/Api.h"

// Marks an atom that links to an image inside a phase.
class VIEWS_API IImageLink : public virtual CStubBaseInterface
{
protected:
    ~IImageLink() = default;
};

// A container of image links, which stand in it in an order.
class VIEWS_API IPhase : public virtual CStubBaseInterface
{
public:
    virtual void PhaseReserved1() {}
    virtual void PhaseReserved2() {}
    virtual void PhaseReserved3() {}
    virtual void PhaseReserved4() {}
    virtual void PhaseReserved5() {}
    virtual void PhaseReserved6() {}
    virtual void PhaseReserved7() {}
    virtual int GetPosition(IImageLink* pLink) = 0; // only differences mean something

protected:
    ~IPhase() = default;
};
