// The stream that the service "ConstructMemoryStream" gives.
#pragma once

#include "Views/host/host.h"

#include <cstddef>

namespace editor
{

// Memory is taken from the system page by page as it is written to, and large blocks grow without being copied. Bytes
// that the stream grows by are zero. A stream that cannot grow has lost its bytes: its length is 0 and GetData gives
// NULL until its end is set anew.
class CMemoryStream final : public IMemoryStream
{
public:
    CMemoryStream();

    void AddRef() override { ++m_nRefs; }
    void Release() override;
    void GetInterface(DWORD id, void** out) override;

    void Seek(DWORD dwOffset, DWORD dwOrigin) override; // from the start (0), from the position (1), from the end (2)
    DWORD GetLength() override { return m_dwLength; }
    void SetEnd() override;
    void* GetData() override;

private:
    ~CMemoryStream();

    bool Reserve(std::size_t bytes);
    void Fail();

    std::byte* m_pBytes = nullptr;
    std::size_t m_nCapacity = 0;
    DWORD m_dwLength = 0;
    DWORD m_dwUsed = 0; // the greatest length so far: what lies beyond has never been written to
    DWORD m_dwPosition = 0;
    bool m_bFailed = false;
    int m_nRefs = 1;
};

} // namespace editor
