#include "Editor/archive/MemoryStream.h"

#include "Editor/model/LiveObjects.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <sys/mman.h>

namespace editor
{
namespace
{

constexpr std::size_t kSmallest = 64 << 10;
constexpr std::size_t kLarge = 4 << 20; // from here on large pages save time

} // namespace

CMemoryStream::CMemoryStream()
{
    ++g_nLiveObjects;
}

CMemoryStream::~CMemoryStream()
{
    if (m_pBytes)
        munmap(m_pBytes, m_nCapacity);
    --g_nLiveObjects;
}

void CMemoryStream::Release()
{
    if (--m_nRefs == 0)
        delete this;
}

void CMemoryStream::GetInterface(DWORD id, void** out)
{
    *out = id == STUB_BASE_INTERFACE_ID ? static_cast<CStubBaseInterface*>(this) : nullptr;
    if (*out)
        AddRef();
}

void CMemoryStream::Seek(DWORD dwOffset, DWORD dwOrigin)
{
    const DWORD dwFrom = dwOrigin == 1 ? m_dwPosition : dwOrigin == 2 ? m_dwLength : 0;
    m_dwPosition = dwFrom + dwOffset;
}

void CMemoryStream::SetEnd()
{
    m_bFailed = false;
    if (!Reserve(m_dwPosition))
        return Fail();
    if (m_dwPosition > m_dwLength && m_dwUsed > m_dwLength)
        std::memset(m_pBytes + m_dwLength, 0, std::min(m_dwPosition, m_dwUsed) - m_dwLength);
    m_dwLength = m_dwPosition;
    m_dwUsed = std::max(m_dwUsed, m_dwLength);
}

void* CMemoryStream::GetData()
{
    if (!m_bFailed && !Reserve(1)) // a stream without bytes has a block all the same
        Fail();
    return m_bFailed ? nullptr : m_pBytes;
}

bool CMemoryStream::Reserve(std::size_t bytes)
{
    if (bytes <= m_nCapacity)
        return true;
    const std::size_t doubled = std::max(kSmallest, std::min<std::size_t>(m_nCapacity, kLarge << 6) + m_nCapacity);
    const std::size_t wanted = (std::max(bytes, doubled) + kSmallest - 1) / kSmallest * kSmallest;
    if (wanted < bytes || wanted > static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max()))
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

void CMemoryStream::Fail()
{
    m_bFailed = true;
    m_dwLength = 0;
    m_dwPosition = 0;
}

} // namespace editor
