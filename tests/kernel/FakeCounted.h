// What counted objects of a fake host have in common.
#pragma once

#include "Kernel/StubBaseInterface.h"

#include <gtest/gtest.h>

template <class Kind>
class FakeCounted : public virtual CStubBaseInterface
{
public:
    FakeCounted() { ++s_nLive; }
    FakeCounted(const FakeCounted&) = delete;
    FakeCounted& operator=(const FakeCounted&) = delete;

    void AddRef() override { ++m_nReferences; }
    void Release() override
    {
        ASSERT_GT(m_nReferences, 0);
        if (--m_nReferences == 0)
            delete this;
    }
    void GetInterface(DWORD id, void** out) override
    {
        *out = Find(id);
        if (*out)
            AddRef();
    }
    int CountReferences() const { return m_nReferences; }
    static int CountLive() { return s_nLive; } // of the kind

protected:
    virtual ~FakeCounted() { --s_nLive; }
    virtual void* Find(DWORD) { return nullptr; } // the interface, borrowed

private:
    static inline int s_nLive = 0;
    int m_nReferences = 1;
};
