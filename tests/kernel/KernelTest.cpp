#include "Kernel/Kernel.h"

#include <gtest/gtest.h>
#include <latch>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace
{

TEST(InterfaceIdTest, ANameHasOneNumberOfItsOwnWhicheverThreadAsks)
{
    const DWORD picture = INT_GetUniqueInterfaceID("IPicture");
    EXPECT_EQ(picture, INT_GetUniqueInterfaceID(std::string("IPicture").c_str()));
    EXPECT_NE(picture, INT_GetUniqueInterfaceID("IPictures"));
    EXPECT_EQ(INT_GetUniqueInterfaceID(""), INT_GetUniqueInterfaceID(nullptr));

    std::vector<DWORD> asked[4];
    {
        std::vector<std::jthread> threads;
        for (auto& ids : asked)
            threads.emplace_back([&ids] {
                for (int i = 0; i < 500; ++i)
                    ids.push_back(INT_GetUniqueInterfaceID(("name " + std::to_string(i)).c_str()));
            });
    }
    EXPECT_EQ(500u, std::set<DWORD>(asked[0].begin(), asked[0].end()).size());
    EXPECT_FALSE(std::set<DWORD>(asked[0].begin(), asked[0].end()).contains(STUB_BASE_INTERFACE_ID));
    for (const auto& ids : asked)
        EXPECT_EQ(asked[0], ids);
}

// A service whose calls wait until they are let go.
struct WaitingProvider : SERVICEPROVIDER
{
    WaitingProvider() : SERVICEPROVIDER{&s_table} {}

    std::latch entered{1}, mayLeave{1};
    std::atomic<bool> left = false;

    static BOOL Serve(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra)
    {
        auto& self = *static_cast<WaitingProvider*>(pProvider);
        EXPECT_EQ(4u, dwSize);
        EXPECT_EQ(0u, dwExtra);
        *static_cast<DWORD*>(pBuffer) = 7;
        self.entered.count_down();
        self.mayLeave.wait();
        self.left = true;
        return TRUE;
    }
    static constexpr SERVICETABLE s_table{&Serve};
};

TEST(ServiceTest, AProviderIsNotTakenAwayDuringACall)
{
    SERVICEREC& record = *SRVN_GetUniqueServiceID("WaitingSv");
    EXPECT_EQ(&record, SRVN_GetUniqueServiceID(std::string("WaitingSv").c_str()));
    EXPECT_NE(&record, SRVN_GetUniqueServiceID("OtherSv"));
    EXPECT_EQ(nullptr, record.provider.load());

    WaitingProvider provider;
    EXPECT_EQ(nullptr, SRVN_InstallProvider("WaitingSv", &provider));
    DWORD answer = 0;
    std::jthread caller([&] {
        const CReadLock lock(record.lock);
        SERVICEPROVIDER* const p = record.provider;
        p->pTable->pfnServiceProc(p, &answer, sizeof answer, 0);
    });
    provider.entered.wait();
    std::jthread remover([&] {
        EXPECT_EQ(&provider, SRVN_InstallProvider("WaitingSv", nullptr));
        EXPECT_TRUE(provider.left);
    });
    provider.mayLeave.count_down();
    caller.join();
    remover.join();
    EXPECT_EQ(7u, answer);
    EXPECT_EQ(nullptr, record.provider.load());
}

// An object with one interface besides its base.
class Thing final : public virtual CStubBaseInterface
{
public:
    explicit Thing(int& nLive) : m_nLive(nLive) { ++m_nLive; }
    ~Thing() { --m_nLive; }

    void AddRef() override { ++m_nReferences; }
    void Release() override
    {
        if (--m_nReferences == 0)
            delete this;
    }
    void GetInterface(DWORD id, void** out) override
    {
        *out = id == INT_GetUniqueInterfaceID("IThing") ? static_cast<CStubBaseInterface*>(this) : nullptr;
        if (*out)
            AddRef();
    }

private:
    int& m_nLive;
    int m_nReferences = 1;
};

TEST(KernelObjectTest, MakesObjectsByClassNameAsTheAskedInterface)
{
    int nLive = 0;
    IKernel* const pKernel = KRNL_GetKernel();
    EXPECT_EQ(1, KRNL_CountReferences());
    KRNL_RegisterClass("CThing", [&nLive] { return new Thing(nLive); });
    KRNL_RegisterClass("CNothing", [] { return nullptr; });

    void* pThing = &nLive;
    EXPECT_FALSE(pKernel->CreateObject("CUnknown", &pThing, INT_GetUniqueInterfaceID("IThing")));
    EXPECT_EQ(nullptr, pThing);
    EXPECT_FALSE(pKernel->CreateObject("CNothing", &pThing, INT_GetUniqueInterfaceID("IThing")));
    EXPECT_FALSE(pKernel->CreateObject("CThing", &pThing, INT_GetUniqueInterfaceID("IOther")));
    EXPECT_EQ(0, nLive); // made, asked in vain, and gone

    EXPECT_TRUE(pKernel->CreateObject("CThing", &pThing, INT_GetUniqueInterfaceID("IThing")));
    EXPECT_EQ(1, nLive);
    static_cast<CStubBaseInterface*>(pThing)->Release(); // one reference, the caller's
    EXPECT_EQ(0, nLive);

    KRNL_RegisterClass("CThing", nullptr);
    EXPECT_FALSE(pKernel->CreateObject("CThing", &pThing, INT_GetUniqueInterfaceID("IThing")));
    pKernel->Release();
    EXPECT_EQ(0, KRNL_CountReferences());
}

} // namespace
