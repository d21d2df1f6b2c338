#include "HostKit/MemoryStream.h"

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
    if (m_block.Reserve(m_dwPosition))
        m_dwLength = m_dwPosition;
    else
        Fail();
}

void* CMemoryStream::GetData()
{
    if (!m_bFailed && !m_block.Reserve(1)) // a stream without bytes has a block all the same
        Fail();
    return m_bFailed ? nullptr : m_block.Get();
}

void CMemoryStream::Fail()
{
    m_bFailed = true;
    m_dwLength = 0;
    m_dwPosition = 0;
}

} // namespace hostkit
