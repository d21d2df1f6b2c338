#include "Editor/archive/ArchivedAtom.h"

#include "HostKit/base/ErrorInfo.h"
#include "HostKit/base/Names.h"

namespace editor
{

void CArchivedAtom::GetInterface(DWORD id, void** out)
{
    Counted::GetInterface(id, out);
    if (!*out && id == IID_IMyErrorInfo && !m_failure.empty())
        *out = hostkit::CErrorInfo::Make(m_failure).Detach();
}

BOOL CArchivedAtom::GetName(char* pBuffer, DWORD* pLength)
{
    return hostkit::GiveName(m_record.name, pBuffer, pLength);
}

BOOL CArchivedAtom::GetContainer(void** ppOut, DWORD)
{
    if (ppOut)
        *ppOut = nullptr;
    return FALSE;
}

} // namespace editor
