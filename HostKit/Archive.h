// The class "CArchiveImp": an archive over whatever stream it is given.
#pragma once

#include "Views/host/host.h"

namespace editor
{

// What its bytes mean, ArchiveFormat.h says. Without a stream it has no bytes and GetData gives NULL.
class CArchive final : public IArchive
{
public:
    CArchive();

    void AddRef() override { ++m_nRefs; }
    void Release() override;
    void GetInterface(DWORD id, void** out) override;

    void SetStream(IByteStream* pStream) override { m_pStream = CStubRef<IByteStream>::Share(pStream); }

    void Seek(DWORD dwOffset, DWORD dwOrigin) override;
    DWORD GetLength() override { return m_pStream ? m_pStream->GetLength() : 0; }
    void SetEnd() override;
    void* GetData() override { return m_pStream ? m_pStream->GetData() : nullptr; }

private:
    ~CArchive();

    CStubRef<IByteStream> m_pStream;
    int m_nRefs = 1;
};

} // namespace editor
