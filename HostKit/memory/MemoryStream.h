// The stream that the service "ConstructMemoryStream" gives.
#pragma once

#include "HostKit/base/Counted.h"
#include "HostKit/memory/LargeBlock.h"
#include "HostKit/memory/MemoryBlock.h"
#include "Views/host/IFileStream.h"
#include "Views/host/IMemoryStream.h"

namespace hostkit
{

// Memory is taken from the system page by page as it is written to, and large blocks grow without being copied. What
// the bytes are that the stream grows by is not said. A stream that cannot grow has lost its bytes: its length is 0 and
// GetData gives NULL until its end is set anew. From kLarge bytes on they lie in a LargeBlock, where there can be one.
//
// The block of the last stream that went is kept for the next one (what is copied is pasted, as a rule), but on loan:
// the system takes its pages back when it needs them.
class HOSTKIT_API CMemoryStream final : public With<Counted, IFileStream>, public IMemoryStream
{
public:
    static constexpr std::size_t kLarge = 16 << 20;

    void Seek(DWORD dwOffset, DWORD dwOrigin) override; // from the start (0), from the position (1), from the end (2)
    DWORD GetLength() override { return m_dwLength; }
    void SetEnd() override;
    void* GetData() override;
    BOOL MakeFile(LPCSTR pszPath) override { return m_large.MakeFile(pszPath, m_dwLength); }
    BOOL TakeFile(LPCSTR pszPath) override;

private:
    bool Reserve(std::size_t bytes);
    void Fail();

    MemoryBlock m_block; // while it is small
    LargeBlock m_large;
    DWORD m_dwLength = 0;
    DWORD m_dwPosition = 0;
    bool m_bFailed = false;
};

} // namespace hostkit
