#include "tests/support/AllocationFailures.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<int> s_countdown{0}; // allocations left up to the one that fails; 0: none does
std::atomic<bool> s_bFailed{false};
std::atomic<int> s_nAllocations{0};

bool FailsNow()
{
    s_nAllocations.fetch_add(1, std::memory_order_relaxed);
    if (s_countdown.load(std::memory_order_relaxed) == 0 || s_countdown.fetch_sub(1) != 1)
        return false;
    s_bFailed = true;
    return true;
}

void* AllocateOnce(std::size_t size, std::size_t alignment)
{
    if (FailsNow())
        return nullptr;
    if (alignment <= alignof(std::max_align_t))
        return std::malloc(size == 0 ? 1 : size);
    return std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
}

void* Allocate(std::size_t size, std::size_t alignment = 1)
{
    for (;;) {
        if (void* pBlock = AllocateOnce(size, alignment))
            return pBlock;
        const std::new_handler handler = std::get_new_handler();
        if (!handler)
            throw std::bad_alloc();
        handler();
    }
}

void* AllocateOrNull(std::size_t size, std::size_t alignment = 1) noexcept
{
    try {
        return Allocate(size, alignment);
    } catch (...) {
        return nullptr;
    }
}

} // namespace

FailAllocation::FailAllocation(int nth)
{
    s_bFailed = false;
    s_countdown = nth;
}

FailAllocation::~FailAllocation()
{
    s_countdown = 0;
}

bool FailAllocation::HasFailed()
{
    return s_bFailed;
}

int CountAllocations(const std::function<void()>& call)
{
    const int nBefore = s_nAllocations;
    call();
    return s_nAllocations - nBefore;
}

int FailEveryAllocation(const std::function<void()>& call, const std::function<void()>& check)
{
    for (int nth = 1;; ++nth) {
        {
            const FailAllocation failure(nth);
            call();
        }
        check();
        if (!FailAllocation::HasFailed())
            return nth - 1;
    }
}

// clang-format off
void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return AllocateOrNull(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return AllocateOrNull(size); }
void* operator new(std::size_t size, std::align_val_t a) { return Allocate(size, static_cast<std::size_t>(a)); }
void* operator new[](std::size_t size, std::align_val_t a) { return Allocate(size, static_cast<std::size_t>(a)); }
void operator delete(void* p) noexcept { std::free(p); }
void operator delete[](void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
void operator delete[](void* p, std::size_t) noexcept { std::free(p); }
void operator delete(void* p, const std::nothrow_t&) noexcept { std::free(p); }
void operator delete[](void* p, const std::nothrow_t&) noexcept { std::free(p); }
void operator delete(void* p, std::align_val_t) noexcept { std::free(p); }
void operator delete[](void* p, std::align_val_t) noexcept { std::free(p); }
void operator delete(void* p, std::size_t, std::align_val_t) noexcept { std::free(p); }
void operator delete[](void* p, std::size_t, std::align_val_t) noexcept { std::free(p); }
// clang-format on
