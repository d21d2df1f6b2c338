// Archives and memory streams of the fake host, and the services that make them.
#pragma once

#include "Views/host/host.h"
#include "tests/kernel/FakeCounted.h"
#include "tests/kernel/FakeService.h"
#include "tests/support/HostEditor.h"

#include <string>
#include <utility>
#include <vector>

class FakeStream final : public FakeCounted<IByteStream>, public IMemoryStream
{
public:
    explicit FakeStream(bool bHasBlock) : m_bHasBlock(bHasBlock) {}

    void Seek(DWORD dwOffset, DWORD dwOrigin) override;
    DWORD GetLength() override { return static_cast<DWORD>(m_bytes.size()) - 1; }
    void SetEnd() override { m_bytes.resize(m_nPosition + 1); }
    void* GetData() override { return m_bHasBlock ? m_bytes.data() : nullptr; }
    std::string ReadOn()
    {
        return {m_bytes.data() + std::exchange(m_nPosition, GetLength()), m_bytes.data() + GetLength()};
    }

private:
    std::vector<char> m_bytes = std::vector<char>(1); // and one more, so that there is a block without bytes, too
    std::size_t m_nPosition = 0;
    const bool m_bHasBlock;
};

class FakeArchive final : public FakeCounted<IByteStream>, public IArchive
{
public:
    void SetStream(IByteStream* pStream) override { m_pStream = CStubRef<IByteStream>::Share(pStream); }
    void Seek(DWORD dwOffset, DWORD dwOrigin) override { m_pStream->Seek(dwOffset, dwOrigin); }
    DWORD GetLength() override { return m_pStream->GetLength(); }
    void SetEnd() override { m_pStream->SetEnd(); }
    void* GetData() override { return m_pStream->GetData(); }
    std::string ReadOn() { return dynamic_cast<FakeStream&>(*m_pStream.Get()).ReadOn(); } // which leaves it at its end

private:
    void* Find(DWORD id) override { return id == IID_IArchive ? static_cast<IArchive*>(this) : nullptr; }

    CStubRef<IByteStream> m_pStream;
};

// The services, installed for as long as this lives.
class FakeArchives
{
public:
    FakeArchives();
    ~FakeArchives();

    bool refusesStreams = false;
    bool refusesArchives = false;
    bool streamsHaveNoBlock = false;
    int nStreams = 0; // made
    FakeService streams;
};

using ArchiveRef = CStubRef<IArchive>;

ArchiveRef Holding(const std::string& bytes); // a new one
