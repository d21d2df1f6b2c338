#include "Editor/archive/ArchivedAtom.h"

#include "Editor/objects/DisplayName.h"
#include "HostKit/ErrorInfo.h"
#include "HostKit/LiveObjects.h"

namespace editor
{

CArchivedAtom::CArchivedAtom(IArchive* pArchive, const ArchiveRecord& record)
    : m_pArchive(CStubRef<IArchive>::Share(pArchive)), m_record(record)
{
    ++g_nLiveObjects;
}

CArchivedAtom::~CArchivedAtom()
{
    --g_nLiveObjects;
}

void CArchivedAtom::Release()
{
    if (--m_nRefs == 0)
        delete this;
}

void CArchivedAtom::GetInterface(DWORD id, void** out)
{
    *out = id == STUB_BASE_INTERFACE_ID ? static_cast<CStubBaseInterface*>(this)
           : id == IID_IAtom            ? static_cast<void*>(static_cast<IAtom*>(this))
                                        : nullptr;
    if (*out)
        AddRef();
    else if (id == IID_IMyErrorInfo && !m_failure.empty())
        *out = CErrorInfo::Make(m_failure).Detach();
}

BOOL CArchivedAtom::GetName(char* pBuffer, DWORD* pLength)
{
    return GiveName(m_record.name, pBuffer, pLength);
}

BOOL CArchivedAtom::GetContainer(void** ppOut, DWORD)
{
    if (ppOut)
        *ppOut = nullptr;
    return FALSE;
}

} // namespace editor
