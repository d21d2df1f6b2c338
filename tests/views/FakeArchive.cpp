#include "tests/views/FakeArchive.h"

#include <cstring>
#include <gtest/gtest.h>

void FakeStream::Seek(DWORD dwOffset, DWORD dwOrigin)
{
    EXPECT_EQ(0u, dwOrigin);
    m_nPosition = dwOffset;
}

void FakeArchive::GetInterface(DWORD id, void** out)
{
    *out = id == IID_IArchive ? static_cast<IArchive*>(this) : nullptr;
    if (*out)
        AddRef();
}

FakeArchives::FakeArchives()
{
    static constexpr SERVICETABLE s_table{&MakeStream};
    pTable = &s_table;
    SRVN_InstallProvider("ConstructMemoryStream", this);
    KRNL_RegisterClass("CArchiveImp",
                       [this]() -> CStubBaseInterface* { return refusesArchives ? nullptr : new FakeArchive; });
}

FakeArchives::~FakeArchives()
{
    SRVN_InstallProvider("ConstructMemoryStream", nullptr);
    KRNL_RegisterClass("CArchiveImp", nullptr);
    EXPECT_EQ(0, FakeCounted::CountLive());
}

BOOL FakeArchives::MakeStream(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra)
{
    EXPECT_EQ(sizeof(void*), dwSize);
    EXPECT_EQ(0u, dwExtra);
    auto& host = *static_cast<FakeArchives*>(pProvider);
    if (host.refusesStreams)
        return FALSE;
    ++host.nStreams;
    *static_cast<IMemoryStream**>(pBuffer) = new FakeStream(!host.streamsHaveNoBlock);
    return TRUE;
}

std::string BytesOf(IByteStream* pStream)
{
    return {static_cast<const char*>(pStream->GetData()), pStream->GetLength()};
}

void SetBytes(IByteStream* pStream, const std::string& bytes)
{
    pStream->Seek(static_cast<DWORD>(bytes.size()), 0);
    pStream->SetEnd();
    std::memcpy(pStream->GetData(), bytes.data(), bytes.size());
}
