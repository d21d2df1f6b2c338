#pragma once

#include "Kernel/StubBaseInterface.h"
#include "Views/host/Api.h"

// Bytes with a position.
class VIEWS_API IByteStream : public virtual CStubBaseInterface
{
public:
    virtual void StreamReserved1() {}
    virtual void StreamReserved2() {}
    virtual void Seek(DWORD dwOffset, DWORD dwOrigin) = 0; // origin 0: from the start
    virtual DWORD GetLength() = 0;
    virtual void StreamReserved5() {}
    virtual void SetEnd() = 0; // the stream ends where the position is, growing when that lies beyond its end
    // All bytes in one block, valid until the stream changes; a block also for a stream without bytes. NULL when there
    // is no such block, for instance because memory did not suffice for the length last asked for.
    virtual void* GetData() = 0;

protected:
    ~IByteStream() = default;
};
