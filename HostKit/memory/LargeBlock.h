// A large block of memory that the system can write out.
#pragma once

#include "HostKit/base/Api.h"

#include <cstddef>

namespace hostkit
{

// Its pages are those of a file that has no name, in the folder where transfer files lie: so it takes no more memory
// than there is to spare, and becomes a transfer file without being copied. Room on the disk is taken when it grows.
class HOSTKIT_API LargeBlock
{
public:
    LargeBlock() = default;
    ~LargeBlock();
    LargeBlock(const LargeBlock&) = delete;
    LargeBlock& operator=(const LargeBlock&) = delete;

    explicit operator bool() const { return m_pBytes != nullptr; }
    std::byte* Get() const { return m_pBytes; }
    bool Reserve(std::size_t bytes); // false, and nothing has changed, when there is no such file or no room for it

    // Its first bytes become a file of that name. They are only read from now on, until the block is to be larger or
    // empty: then it is another one, with the same bytes.
    bool MakeFile(const char* pszPath, std::size_t length);
    // Such a file of this program's, or a large one that another program of the user's holds, becomes the block. The
    // length; 0: it is none of these.
    std::size_t TakeFile(const char* pszPath);

private:
    bool Map(int fd, std::size_t bytes, int nSharing); // a flag of mmap
    void Drop();

    int m_fd = -1;            // -1: what is written is the block's alone
    std::size_t m_nGiven = 0; // the length of the file that it has become; 0: none
    std::byte* m_pBytes = nullptr;
    std::size_t m_nCapacity = 0;
};

} // namespace hostkit
