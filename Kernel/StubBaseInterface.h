// The component base of every host object and of every view.
#pragma once

#include "Kernel/Api.h"

// Asked of any object through GetInterface, names the object's CStubBaseInterface itself.
inline constexpr DWORD STUB_BASE_INTERFACE_ID = 0xFFFFFFFF;

// Every interface derives from it virtually, so that an object with several interfaces has one base. The order
// of the operations is a contract between separately built libraries: an interface's own operations follow the
// four of this base (and those of its other bases) in its table, in the order in which it declares them.
//
// A pointer that an operation hands out carries a reference, which its receiver gives back once with Release;
// a pointer passed in is borrowed for the call. Objects are never deleted through an interface.
class KERNEL_API CStubBaseInterface
{
public:
    virtual void AddRef() = 0;
    virtual void Release() = 0; // the object may be gone afterwards
    // *out becomes the object's interface of that identifier, with a reference, or NULL when it has none; no other
    // failure exists. What *out held before is not looked at.
    virtual void GetInterface(DWORD id, void** out) = 0;
    virtual void StubReserved4(DWORD) {} // no one calls it

protected:
    CStubBaseInterface() = default;
    ~CStubBaseInterface() = default;
    CStubBaseInterface(const CStubBaseInterface&) = default;
    CStubBaseInterface& operator=(const CStubBaseInterface&) = default;
};
