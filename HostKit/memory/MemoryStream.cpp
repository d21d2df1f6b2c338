#include "HostKit/memory/MemoryStream.h"

#include <algorithm>

namespace hostkit
{

void CMemoryStream::Seek(DWORD dwOffset, DWORD dwOrigin)
{
    const DWORD dwFrom = dwOrigin == 1 ? m_dwPosition : dwOrigin == 2 ? m_dwLength : 0;
    m_dwPosition = dwFrom + dwOffset;
}

void CMemoryStream::SetEnd()
{
    m_bFailed = false;
    if (Reserve(m_dwPosition))
        m_dwLength = m_dwPosition;
    else
        Fail();
}

void* CMemoryStream::GetData()
{
    if (!m_bFailed && !m_large && !m_block.Reserve(1)) // a stream without bytes has a block all the same
        Fail();
    return m_bFailed ? nullptr : m_large ? m_large.Get() : m_block.Get();
}

BOOL CMemoryStream::TakeFile(LPCSTR pszPath)
{
    const std::size_t length = m_large.TakeFile(pszPath);
    if (length == 0)
        return FALSE;
    m_bFailed = false;
    m_dwLength = static_cast<DWORD>(length);
    m_dwPosition = 0;
    return TRUE;
}

bool CMemoryStream::Reserve(std::size_t bytes)
{
    if (m_large)
        return m_large.Reserve(bytes);
    if (bytes < kLarge || !m_large.Reserve(bytes))
        return m_block.Reserve(bytes);
    std::copy_n(m_block.Get(), m_dwLength, m_large.Get());
    return true;
}

void CMemoryStream::Fail()
{
    m_bFailed = true;
    m_dwLength = 0;
    m_dwPosition = 0;
}

} // namespace hostkit
