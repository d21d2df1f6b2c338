// Objects that are counted, and tell which interfaces they have.
//
//     class Song : public hostkit::With<hostkit::Counted, IAtom, IAtomIcon> { ... };
//
// is all that AddRef, Release and GetInterface take. A class derived from Song adds interfaces in the same way:
// With<Song, IAtomThumbnail>.
#pragma once

#include "HostKit/base/Api.h"
#include "Views/host/StubRef.h"

#include <utility>

namespace hostkit
{

// Made with one reference, on the heap; goes with the last one. User-interface thread only.
class HOSTKIT_API Counted : public virtual CStubBaseInterface
{
public:
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    void AddRef() override { ++m_nRefs; }
    void Release() override;
    void GetInterface(DWORD id, void** out) override;

    static int CountAlive(); // of all kinds; what a host that looks for leaks compares

protected:
    Counted();
    virtual ~Counted();

    // This object's own, without a reference; NULL when it has none of that identifier. What is another object's, such
    // as an error, GetInterface hands out instead.
    virtual void* FindInterface(DWORD id);

private:
    int m_nRefs = 1;
};

// Base with these interfaces besides.
template <class Base, class... Interfaces>
class HOSTKIT_API With : public Base, public virtual Interfaces...
{
protected:
    using Base::Base;
    ~With() override = default;

    void* FindInterface(DWORD id) override
    {
        void* pFound = nullptr;
        const bool bHas =
            ((id == InterfaceIdOf<Interfaces>() && (pFound = static_cast<Interfaces*>(this)) != nullptr) || ...);
        return bHas ? pFound : Base::FindInterface(id);
    }
};

// A new object, and its reference.
template <class Object, class... Arguments>
[[nodiscard]] CStubRef<Object> Make(Arguments&&... arguments)
{
    return CStubRef<Object>::Adopt(new Object(std::forward<Arguments>(arguments)...));
}

} // namespace hostkit
