#pragma once

#include "Kernel/StubBaseInterface.h"
#include "Views/host/InterfaceIds.h"

// What a host's memory streams may have besides, and its archives pass on: bytes that become a file, and come from one,
// without being copied. Without it, and wherever it answers FALSE, the bytes are written and read.
class VIEWS_API IFileStream : public virtual CStubBaseInterface
{
public:
    // All bytes become a new file of that path, which its owner alone may read and write. They are only read from then
    // on, until the stream's end is set anew. FALSE: there is no file.
    virtual BOOL MakeFile(LPCSTR pszPath) = 0;
    // The file's bytes become the stream's, whose position is then its start. FALSE: the stream is as it was.
    virtual BOOL TakeFile(LPCSTR pszPath) = 0;

    static DWORD Id(); // asked of the kernel when it is first needed, unlike those of InterfaceIds.h

protected:
    ~IFileStream() = default;
};

template <>
inline DWORD InterfaceIdOf<IFileStream>()
{
    return IFileStream::Id();
}
