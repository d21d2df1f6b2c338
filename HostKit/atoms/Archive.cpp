#include "HostKit/atoms/Archive.h"

#include "Views/host/IFileStream.h"

namespace hostkit
{

void CArchive::GetInterface(DWORD id, void** out)
{
    if (m_pStream && id == IFileStream::Id())
        return m_pStream->GetInterface(id, out);
    With::GetInterface(id, out);
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

} // namespace hostkit
