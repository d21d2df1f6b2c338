// A block of memory straight from the system.
#pragma once

#include "HostKit/base/Api.h"

#include <cstddef>

namespace hostkit
{

// Grows without being copied, and holds anything at first. The last block that went is kept for the next one.
class HOSTKIT_API MemoryBlock
{
public:
    MemoryBlock() = default;
    ~MemoryBlock();
    MemoryBlock(const MemoryBlock&) = delete;
    MemoryBlock& operator=(const MemoryBlock&) = delete;

    std::byte* Get() const { return m_pBytes; }
    bool Reserve(std::size_t bytes); // false, and nothing has changed, when there is no memory

private:
    std::byte* m_pBytes = nullptr;
    std::size_t m_nCapacity = 0;
};

} // namespace hostkit
