#include "Kernel/SyncWrRd.h"

#include <gtest/gtest.h>
#include <latch>
#include <thread>
#include <vector>

namespace
{

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

TEST(SyncWrRdTest, TwoReadersAreInsideAtOnce)
{
    CSyncWrRd lock;
    std::latch bothInside(2);
    const auto read = [&] {
        const CReadLock reading(lock);
        bothInside.arrive_and_wait(); // never passed if one kept the other out
    };
    const std::jthread first(read), second(read);
}

// The writer waits somewhere in the middle of the rounds; a lock that let it go first would never end them.
TEST(SyncWrRdTest, AReaderReadsAgainWhileAWriterWaits)
{
    CSyncWrRd lock;
    std::atomic<bool> written = false;
    lock.WaitForRead();
    std::jthread writer([&] {
        const CWriteLock writing(lock);
        written = true;
    });
    for (int i = 0; i < 2000; ++i) {
        const CReadLock again(lock);
        std::this_thread::yield();
        EXPECT_FALSE(written);
    }
    lock.DoneReading();
    writer.join();
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
