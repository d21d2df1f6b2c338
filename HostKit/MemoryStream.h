// The stream that the service "ConstructMemoryStream" gives.
#pragma once

#include "HostKit/Counted.h"
#include "HostKit/MemoryBlock.h"
#include "Views/host/IMemoryStream.h"

namespace hostkit
{

// Memory is taken from the system page by page as it is written to, and large blocks grow without being copied. What
// the bytes are that the stream grows by is not said. A stream that cannot grow has lost its bytes: its length is 0 and
// GetData gives NULL until its end is set anew.
//
// The block of the last stream that went is kept for the next one (what is copied is pasted, as a rule), but on loan:
// the system takes its pages back when it needs them.
class HOSTKIT_API CMemoryStream final : public Counted, public IMemoryStream
{
public:
    void Seek(DWORD dwOffset, DWORD dwOrigin) override; // from the start (0), from the position (1), from the end (2)
    DWORD GetLength() override { return m_dwLength; }
    void SetEnd() override;
    void* GetData() override;

private:
    void Fail();

    MemoryBlock m_block;
    DWORD m_dwLength = 0;
    DWORD m_dwPosition = 0;
    bool m_bFailed = false;
};

} // namespace hostkit
