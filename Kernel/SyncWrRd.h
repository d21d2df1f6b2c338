// A lock for many readers or one writer.
#pragma once

#include "Kernel/Api.h"

#include <atomic>

// Usable from every thread; blocked threads sleep. Each Wait is ended by one Done on the same thread.
//
// A reader waits only for a writer that has the lock, never for one that is still waiting: so a reader may read
// again whoever waits. The price is that readers who overlap without end keep a writer waiting; what the lock
// guards changes rarely and is read briefly. A writer may read and write again on its own thread; the lock is
// free when all of it has been given back. A reader must not wait to write: it would wait for itself.
class KERNEL_API CSyncWrRd
{
public:
    CSyncWrRd() = default;
    CSyncWrRd(const CSyncWrRd&) = delete;
    CSyncWrRd& operator=(const CSyncWrRd&) = delete;

    void WaitForRead();
    void DoneReading();
    void WaitForWrite();
    void DoneWriting();

private:
    bool IsWriter() const;
    void LeaveWriter();

    std::atomic<DWORD> m_state = 0;  // the number of readers, or kWritten
    std::atomic<DWORD> m_writer = 0; // the writer's thread, 0 while there is none
    DWORD m_nDepth = 0;              // what the writer has to give back; touched by the writer alone
};
static_assert(sizeof(CSyncWrRd) == 12 && alignof(CSyncWrRd) <= 4, "the record's lock is 12 bytes");

// Holds the lock for as long as the object lives.
class CReadLock
{
public:
    explicit CReadLock(CSyncWrRd& lock) : m_lock(lock) { m_lock.WaitForRead(); }
    ~CReadLock() { m_lock.DoneReading(); }
    CReadLock(const CReadLock&) = delete;
    CReadLock& operator=(const CReadLock&) = delete;

private:
    CSyncWrRd& m_lock;
};

class CWriteLock
{
public:
    explicit CWriteLock(CSyncWrRd& lock) : m_lock(lock) { m_lock.WaitForWrite(); }
    ~CWriteLock() { m_lock.DoneWriting(); }
    CWriteLock(const CWriteLock&) = delete;
    CWriteLock& operator=(const CWriteLock&) = delete;

private:
    CSyncWrRd& m_lock;
};
