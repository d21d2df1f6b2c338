#include "HostKit/memory/MemoryBlock.h"

#include <algorithm>
#include <cstdint>
#include <sys/mman.h>
#include <utility>

namespace hostkit
{
namespace
{

constexpr std::size_t kSmallest = 64 << 10;
constexpr std::size_t kLarge = 4 << 20;     // from here on large pages save time
constexpr std::size_t kMostMore = 64 << 20; // that a block grows by beyond what is asked for
constexpr std::size_t kMostKept = 256 << 20;

// User-interface thread only, like all that makes streams.
class KeptBlock
{
public:
    KeptBlock() = default;
    ~KeptBlock() { Keep(nullptr, 0); }
    KeptBlock(const KeptBlock&) = delete;
    KeptBlock& operator=(const KeptBlock&) = delete;

    std::size_t Capacity() const { return m_nCapacity; }
    void* Take()
    {
        m_nCapacity = 0;
        return std::exchange(m_pBytes, nullptr);
    }
    // In place of what was kept.
    void Keep(void* pBytes, std::size_t capacity)
    {
        if (m_pBytes)
            munmap(m_pBytes, m_nCapacity);
        m_pBytes = pBytes;
        m_nCapacity = capacity;
    }

private:
    void* m_pBytes = nullptr;
    std::size_t m_nCapacity = 0;
};
KeptBlock g_kept;

} // namespace

MemoryBlock::~MemoryBlock()
{
    if (!m_pBytes)
        return;
    const bool bKeep = m_nCapacity <= kMostKept && m_nCapacity >= g_kept.Capacity();
    if (bKeep && madvise(m_pBytes, m_nCapacity, MADV_FREE) == 0)
        g_kept.Keep(m_pBytes, m_nCapacity);
    else
        munmap(m_pBytes, m_nCapacity);
}

bool MemoryBlock::Reserve(std::size_t bytes)
{
    if (bytes <= m_nCapacity)
        return true;
    if (!m_pBytes && bytes <= g_kept.Capacity()) {
        m_nCapacity = g_kept.Capacity();
        m_pBytes = static_cast<std::byte*>(g_kept.Take());
        return true;
    }
    const std::size_t more = std::max(kSmallest, m_nCapacity + std::min(m_nCapacity, kMostMore));
    const std::size_t wanted = (std::max(bytes, more) + kSmallest - 1) / kSmallest * kSmallest;
    if (wanted < bytes || wanted > PTRDIFF_MAX)
        return false;
    void* const p = m_pBytes ? mremap(m_pBytes, m_nCapacity, wanted, MREMAP_MAYMOVE)
                             : mmap(nullptr, wanted, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (p == MAP_FAILED)
        return false;
    m_pBytes = static_cast<std::byte*>(p);
    m_nCapacity = wanted;
    if (wanted >= kLarge)
        madvise(p, wanted, MADV_HUGEPAGE); // where there are none, small ones do
    return true;
}

} // namespace hostkit
