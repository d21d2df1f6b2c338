// A service: what stands between those who call it by name and the one who provides it.
#pragma once

#include "Kernel/SyncWrRd.h"

#include <atomic>
#include <cstddef>

struct SERVICEPROVIDER;

// Serves one request: non-zero, and the buffer holds the answer, or 0 when it refuses. Called on the caller's
// thread, under the record's reader lock. dwExtra is 0.
using SERVICEPROC = BOOL (*)(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra);

struct SERVICETABLE
{
    SERVICEPROC pfnServiceProc;
};

// What a provider begins with.
struct SERVICEPROVIDER
{
    const SERVICETABLE* pTable;
};

// Owned by the kernel, valid for the life of the process.
struct SERVICEREC
{
    CSyncWrRd lock; // held for reading while the provider serves, for writing while it changes
    std::atomic<SERVICEPROVIDER*> provider = nullptr; // NULL while none is installed
};
static_assert(offsetof(SERVICEREC, lock) == 0);
static_assert(sizeof(void*) != 4 || (offsetof(SERVICEREC, provider) == 12 && sizeof(SERVICEREC) == 16));
