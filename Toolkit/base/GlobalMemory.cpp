#include "Toolkit/base/GlobalMemory.h"

#include "Toolkit/base/HandleTable.h"

#include <algorithm>
#include <limits>
#include <new>

namespace
{
// Exactly as long as asked for, so that a tool that watches memory sees every byte beyond it.
using Bytes = std::unique_ptr<BYTE[]>;

struct Block
{
    Bytes bytes; // none for an empty block
    std::size_t size = 0;
    unsigned locks = 0;
};

toolkit::HandleTable<HGLOBAL, Block> s_blocks;

Bytes MakeBytes(std::size_t nBytes, bool bZero)
{
    if (nBytes == 0)
        return nullptr;
    if (nBytes > static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max()))
        throw std::bad_alloc();
    return bZero ? std::make_unique<BYTE[]>(nBytes) : std::make_unique_for_overwrite<BYTE[]>(nBytes);
}

template <class Result>
Result Refuse(DWORD dwError, Result result)
{
    SetLastError(dwError);
    return result;
}

Block* FindBlock(HGLOBAL hMem)
{
    Block* pBlock = s_blocks.Find(hMem);
    if (!pBlock)
        SetLastError(ERROR_INVALID_HANDLE);
    return pBlock;
}
} // namespace

HGLOBAL GlobalAlloc(UINT uFlags, std::size_t nBytes)
try {
    if (!(uFlags & GMEM_MOVEABLE))
        return Refuse<HGLOBAL>(ERROR_INVALID_PARAMETER, nullptr);
    auto block = std::make_unique<Block>();
    block->bytes = MakeBytes(nBytes, uFlags & GMEM_ZEROINIT);
    block->size = nBytes;
    const HGLOBAL hMem = s_blocks.Add(std::move(block));
    return hMem ? hMem : Refuse<HGLOBAL>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
} catch (const std::bad_alloc&) {
    return Refuse<HGLOBAL>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
}

void* GlobalLock(HGLOBAL hMem)
{
    Block* pBlock = FindBlock(hMem);
    if (!pBlock || !pBlock->bytes)
        return nullptr;
    ++pBlock->locks;
    return pBlock->bytes.get();
}

BOOL GlobalUnlock(HGLOBAL hMem)
{
    Block* pBlock = FindBlock(hMem);
    if (!pBlock)
        return FALSE;
    if (pBlock->locks == 0)
        return Refuse(ERROR_NOT_LOCKED, FALSE);
    SetLastError(ERROR_SUCCESS);
    return --pBlock->locks > 0;
}

std::size_t GlobalSize(HGLOBAL hMem)
{
    const Block* pBlock = FindBlock(hMem);
    return pBlock ? pBlock->size : 0;
}

HGLOBAL GlobalFree(HGLOBAL hMem)
{
    const Block* pBlock = FindBlock(hMem);
    if (!pBlock)
        return hMem;
    if (pBlock->locks > 0)
        return Refuse(ERROR_ACCESS_DENIED, hMem);
    s_blocks.Remove(hMem);
    return nullptr;
}

int toolkit::CountGlobalBlocks()
{
    return s_blocks.GetCount();
}

HGLOBAL toolkit::CopyGlobal(HGLOBAL hMem)
{
    const Block* pBlock = FindBlock(hMem);
    if (!pBlock)
        return nullptr;
    const HGLOBAL hCopy = GlobalAlloc(GMEM_MOVEABLE, pBlock->size);
    const Block* pCopy = s_blocks.Find(hCopy);
    if (pCopy)
        std::copy_n(pBlock->bytes.get(), pBlock->size, pCopy->bytes.get());
    return hCopy;
}
