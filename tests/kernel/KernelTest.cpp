// Numbers for names, services, objects by their names, and the lock that readers share.
#include "Kernel/SyncWrRd.h"
#include "tests/kernel/FakeCounted.h"
#include "tests/kernel/FakeService.h"

#include <fstream>
#include <gtest/gtest.h>
#include <latch>
#include <set>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace
{

const DWORD s_askedFirst[] = {INT_GetUniqueInterfaceID("IFirst"), INT_GetUniqueInterfaceID("INext")};

TEST(InterfaceIdTest, ANameHasOneNumberOfItsOwnInTheOrderOfAskingWhicheverThreadAsks)
{
    EXPECT_EQ(1u, s_askedFirst[0]);
    EXPECT_EQ(2u, s_askedFirst[1]);
    const DWORD picture = INT_GetUniqueInterfaceID("IPicture");
    EXPECT_EQ(picture, INT_GetUniqueInterfaceID(std::string("IPicture").c_str()));
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
    for (const auto& ids : asked)
        EXPECT_EQ(asked[0], ids);
}

TEST(ServiceTest, AProviderIsNotTakenAwayDuringACall)
{
    SERVICEREC& record = *SRVN_GetUniqueServiceID("WaitingSv");
    EXPECT_EQ(&record, SRVN_GetUniqueServiceID(std::string("WaitingSv").c_str()));
    EXPECT_NE(&record, SRVN_GetUniqueServiceID("OtherSv"));
    std::latch entered{1}, mayLeave{1};
    std::atomic<bool> left = false;
    FakeService service("WaitingSv", [&](void*, DWORD, DWORD) {
        entered.count_down();
        mayLeave.wait();
        return left = true;
    });
    EXPECT_EQ(&service, record.provider.load());
    std::jthread caller([&] {
        const CReadLock lock(record.lock);
        service.pTable->pfnServiceProc(record.provider, nullptr, 0, 0);
    });
    entered.wait();
    std::jthread remover([&] {
        EXPECT_EQ(&service, SRVN_InstallProvider("WaitingSv", nullptr));
        EXPECT_TRUE(left);
    });
    mayLeave.count_down();
    caller.join();
    remover.join();
    EXPECT_EQ(nullptr, record.provider.load());
}

class Thing final : public FakeCounted<Thing>
{
    void* Find(DWORD id) override
    {
        return id == INT_GetUniqueInterfaceID("IThing") ? static_cast<CStubBaseInterface*>(this) : nullptr;
    }
};

TEST(KernelObjectTest, MakesObjectsByClassNameAsTheAskedInterface)
{
    const DWORD thing = INT_GetUniqueInterfaceID("IThing");
    IKernel* const pKernel = KRNL_GetKernel();
    EXPECT_EQ(1, KRNL_CountReferences());
    KRNL_RegisterClass("CThing", [] { return new Thing; });
    KRNL_RegisterClass("CNothing", [] { return nullptr; });

    void* pThing = nullptr;
    pKernel->GetInterface(STUB_BASE_INTERFACE_ID, &pThing);
    EXPECT_EQ(static_cast<CStubBaseInterface*>(pKernel), pThing);
    EXPECT_EQ(2, KRNL_CountReferences());
    pKernel->Release();
    EXPECT_FALSE(pKernel->CreateObject("CUnknown", &pThing, thing));
    EXPECT_EQ(nullptr, pThing);
    EXPECT_FALSE(pKernel->CreateObject("CNothing", &pThing, thing));
    EXPECT_FALSE(pKernel->CreateObject("CThing", &pThing, INT_GetUniqueInterfaceID("IOther")));
    EXPECT_EQ(0, Thing::CountLive()); // made, asked in vain, and gone

    EXPECT_TRUE(pKernel->CreateObject("CThing", &pThing, thing));
    EXPECT_EQ(1, Thing::CountLive());
    static_cast<CStubBaseInterface*>(pThing)->Release(); // one reference, the caller's
    EXPECT_EQ(0, Thing::CountLive());
    KRNL_RegisterClass("CThing", nullptr);
    EXPECT_FALSE(pKernel->CreateObject("CThing", &pThing, thing));
    pKernel->Release();
    EXPECT_EQ(0, KRNL_CountReferences());
}

void WaitUntilAsleep(pid_t thread)
{
    for (std::string line; line.find(") S") == line.npos; std::this_thread::yield()) {
        std::ifstream status("/proc/self/task/" + std::to_string(thread) + "/stat");
        std::getline(status, line);
    }
}

TEST(SyncWrRdTest, ReadersShareAndWritersAreAlone)
{
    constexpr int kThreads = 4, kRounds = 5000;
    CSyncWrRd lock;
    int n = 0, twice = 0; // plain integers: only the lock keeps them apart
    std::atomic<int> torn = 0;
    const auto write = [&] {
        for (int i = 0; i < kRounds; ++i) {
            const CWriteLock writing(lock);
            ++n;
            twice += 2;
        }
    };
    const auto read = [&] {
        for (int i = 0; i < kRounds; ++i) {
            const CReadLock reading(lock);
            if (twice != 2 * n)
                ++torn;
        }
    };
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < kThreads; ++i)
            i % 2 ? threads.emplace_back(write) : threads.emplace_back(read);
    }
    EXPECT_EQ(0, torn);
    EXPECT_EQ(kThreads / 2 * kRounds, n);
}

// A lock that let the writer, once it waits, go first would never end the rounds.
TEST(SyncWrRdTest, ReadersAreInsideTogetherAlsoWhileAWriterWaits)
{
    CSyncWrRd lock;
    std::atomic<bool> written = false;
    std::atomic<pid_t> thread = 0;
    lock.WaitForRead();
    std::jthread([&] { const CReadLock reading(lock); }).join(); // never ends if one reader kept the other out
    std::jthread writer([&] {
        thread = gettid();
        thread.notify_one();
        const CWriteLock writing(lock);
        written = true;
    });
    thread.wait(0);
    for (int i = 0; i < 2000; ++i) {
        const CReadLock again(lock);
        std::this_thread::yield();
        EXPECT_FALSE(written);
    }
    WaitUntilAsleep(thread);
    lock.DoneReading();
    writer.join(); // never if the last reader did not wake it
    EXPECT_TRUE(written);
}

TEST(SyncWrRdTest, AWriterReadsAndWritesAgainAndLeavesWhenAllIsGivenBack)
{
    CSyncWrRd lock;
    std::atomic<bool> inside = false;
    lock.WaitForWrite();
    lock.WaitForRead();
    lock.WaitForWrite();
    std::jthread reader([&] {
        const CReadLock reading(lock);
        inside = true;
    });
    lock.DoneWriting();
    lock.DoneWriting(); // the read is still open
    for (int i = 0; i < 200; ++i)
        std::this_thread::yield();
    EXPECT_FALSE(inside);
    lock.DoneReading();
    reader.join();
    EXPECT_TRUE(inside);
}

} // namespace
