#include "Kernel/SyncWrRd.h"

#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace
{

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
