// CStubRef: an interface pointer with the reference that belongs to it.
#pragma once

#include "Kernel/StubBaseInterface.h"
#include "Views/host/InterfaceIds.h"

#include <utility>

// Holds one reference to an object through one of its interfaces, and gives it back. One pointer in size.
//
// Empty at first. References are taken and given back on the object's CStubBaseInterface. Moving hands the
// reference on; a second reference is made only by Share, where one reads it.
template <class Interface>
class CStubRef
{
public:
    CStubRef() = default;
    CStubRef(std::nullptr_t) noexcept {}
    ~CStubRef() { Release(); }
    CStubRef(CStubRef&& other) noexcept : m_p(std::exchange(other.m_p, nullptr)) {}
    CStubRef& operator=(CStubRef&& other) noexcept
    {
        CStubRef former(std::move(*this)); // released last: that may re-enter this holder
        m_p = std::exchange(other.m_p, nullptr);
        return *this;
    }

    // Takes over a reference that p carries, or adds one of its own. NULL gives an empty holder.
    [[nodiscard]] static CStubRef Adopt(Interface* p) noexcept
    {
        CStubRef held;
        held.m_p = p;
        return held;
    }
    [[nodiscard]] static CStubRef Share(Interface* p)
    {
        if (p)
            static_cast<CStubBaseInterface*>(p)->AddRef();
        return Adopt(p);
    }
    // The interface of that type of the object that source belongs to; empty when it has none or source is NULL.
    template <class Source>
    [[nodiscard]] static CStubRef From(Source* source)
    {
        CStubRef held;
        held.QueryFrom(source);
        return held;
    }

    Interface* Get() const noexcept { return static_cast<Interface*>(m_p); }
    Interface* operator->() const noexcept { return Get(); }
    explicit operator bool() const noexcept { return m_p != nullptr; }

    void Release()
    {
        if (void* const p = std::exchange(m_p, nullptr))
            static_cast<CStubBaseInterface*>(static_cast<Interface*>(p))->Release();
    }

    // Releases what is held, then takes source's interface of this type. So source must not live by the reference
    // held here.
    template <class Source>
    void QueryFrom(Source* source)
    {
        Release();
        if (source)
            static_cast<CStubBaseInterface*>(source)->GetInterface(InterfaceIdOf<Interface>(), &m_p);
    }

    // Where an operation stores a pointer of this type with its reference; what was held is released first.
    void** Receive()
    {
        Release();
        return &m_p;
    }

    // Hands the reference to the caller.
    [[nodiscard]] Interface* Detach() noexcept { return static_cast<Interface*>(std::exchange(m_p, nullptr)); }

private:
    void* m_p = nullptr; // an Interface*, kept untyped so that out-pointers can be lent
};
