#include "HostKit/Archive.h"

#include "HostKit/LiveObjects.h"

namespace editor
{

CArchive::CArchive()
{
    ++g_nLiveObjects;
}

CArchive::~CArchive()
{
    --g_nLiveObjects;
}

void CArchive::Release()
{
    if (--m_nRefs == 0)
        delete this;
}

void CArchive::GetInterface(DWORD id, void** out)
{
    *out = id == STUB_BASE_INTERFACE_ID ? static_cast<CStubBaseInterface*>(this)
           : id == IID_IArchive         ? static_cast<void*>(static_cast<IArchive*>(this))
                                        : nullptr;
    if (*out)
        AddRef();
}

void CArchive::Seek(DWORD dwOffset, DWORD dwOrigin)
{
    if (m_pStream)
        m_pStream->Seek(dwOffset, dwOrigin);
}

void CArchive::SetEnd()
{
    if (m_pStream)
        m_pStream->SetEnd();
}

} // namespace editor
