// The class "CArchiveImp": an archive over whatever stream it is given.
#pragma once

#include "HostKit/base/Counted.h"
#include "Views/host/IArchive.h"
#include "Views/host/IFileStream.h"

namespace hostkit
{

// What its bytes mean is the atom editor's affair. Without a stream it has no bytes and GetData gives NULL.
class HOSTKIT_API CArchive final : public With<Counted, IArchive>
{
public:
    void GetInterface(DWORD id, void** out) override // also the stream's IFileStream
    {
        if (m_pStream && id == IFileStream::Id())
            m_pStream->GetInterface(id, out);
        else
            With::GetInterface(id, out);
    }

    void SetStream(IByteStream* pStream) override { m_pStream = CStubRef<IByteStream>::Share(pStream); }

    void Seek(DWORD dwOffset, DWORD dwOrigin) override
    {
        if (m_pStream)
            m_pStream->Seek(dwOffset, dwOrigin);
    }
    DWORD GetLength() override { return m_pStream ? m_pStream->GetLength() : 0; }
    void SetEnd() override
    {
        if (m_pStream)
            m_pStream->SetEnd();
    }
    void* GetData() override { return m_pStream ? m_pStream->GetData() : nullptr; }

private:
    CStubRef<IByteStream> m_pStream;
};

} // namespace hostkit
