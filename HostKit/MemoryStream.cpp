#include "HostKit/MemoryStream.h"

#include "HostKit/LiveObjects.h"

namespace editor
{
CMemoryStream::CMemoryStream()
{
    ++g_nLiveObjects;
}

CMemoryStream::~CMemoryStream()
{
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

} // namespace editor
