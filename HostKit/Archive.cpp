#include "HostKit/Archive.h"

namespace hostkit
{

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
