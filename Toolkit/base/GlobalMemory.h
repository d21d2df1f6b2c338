// Blocks of memory behind handles, as data travels through the clipboard and in drags.
//
// A handle is never a pointer: it is locked to reach the bytes, and refused once its block is freed. Every block is
// a moveable one. User-interface thread only. What fails says why in GetLastError.
#pragma once

#include "Toolkit/base/LastError.h"

using HGLOBAL = HANDLE;

inline constexpr UINT GMEM_MOVEABLE = 0x0002;
inline constexpr UINT GMEM_ZEROINIT = 0x0040;
inline constexpr UINT GHND = GMEM_MOVEABLE | GMEM_ZEROINIT;

// NULL when memory runs out, or without GMEM_MOVEABLE. A block of 0 bytes has a handle but nothing to lock.
TOOLKIT_API HGLOBAL GlobalAlloc(UINT uFlags, std::size_t nBytes);
// The bytes, at one place until the last lock is given back; NULL for a stale handle and for an empty block.
TOOLKIT_API void* GlobalLock(HGLOBAL hMem);
// TRUE while locks are left. FALSE, with ERROR_SUCCESS, when that was the last one; with ERROR_NOT_LOCKED when there
// was none.
TOOLKIT_API BOOL GlobalUnlock(HGLOBAL hMem);
TOOLKIT_API std::size_t GlobalSize(HGLOBAL hMem); // exactly what was asked for; 0 for a stale handle
// NULL: the block is gone. The handle itself, and nothing happens, when it is stale or its block is locked.
TOOLKIT_API HGLOBAL GlobalFree(HGLOBAL hMem);

namespace toolkit
{
TOOLKIT_API int CountGlobalBlocks();     // alive; what tests compare
TOOLKIT_API HGLOBAL CopyGlobal(HGLOBAL); // a block of the same size with the same bytes; NULL as GlobalAlloc

// The bytes of a block for as long as the object lives.
template <class T>
class GlobalLocker
{
public:
    explicit GlobalLocker(HGLOBAL hMem) : m_hMem(hMem), m_p(static_cast<T*>(GlobalLock(hMem))) {}
    ~GlobalLocker()
    {
        if (m_p)
            GlobalUnlock(m_hMem);
    }
    GlobalLocker(const GlobalLocker&) = delete;
    GlobalLocker& operator=(const GlobalLocker&) = delete;

    T* Get() const { return m_p; } // NULL when the block could not be locked

private:
    const HGLOBAL m_hMem;
    T* const m_p;
};
} // namespace toolkit
