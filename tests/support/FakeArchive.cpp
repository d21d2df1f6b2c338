#include "tests/support/FakeArchive.h"

#include "Views/clipboard/clipboard.h"

void FakeStream::Seek(DWORD dwOffset, DWORD dwOrigin)
{
    EXPECT_EQ(0u, dwOrigin);
    m_nPosition = dwOffset;
}

FakeArchives::FakeArchives()
    : streams("ConstructMemoryStream", [this](void* pBuffer, DWORD dwSize, DWORD dwExtra) {
          EXPECT_EQ(sizeof(void*), dwSize);
          EXPECT_EQ(0u, dwExtra);
          if (refusesStreams)
              return FALSE;
          ++nStreams;
          *static_cast<IMemoryStream**>(pBuffer) = new FakeStream(!streamsHaveNoBlock);
          return TRUE;
      })
{
    KRNL_RegisterClass("CArchiveImp",
                       [this]() -> CStubBaseInterface* { return refusesArchives ? nullptr : new FakeArchive; });
}

FakeArchives::~FakeArchives()
{
    KRNL_RegisterClass("CArchiveImp", nullptr);
    EXPECT_EQ(0, FakeArchive::CountLive());
}

ArchiveRef Holding(const std::string& bytes)
{
    auto pArchive = ArchiveRef::Adopt(ConstructMemoryArchive());
    SetBytes(pArchive.Get(), bytes);
    pArchive->Seek(0, 0);
    return pArchive;
}
