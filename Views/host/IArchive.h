#pragma once

#include "Views/host/IByteStream.h"

// A serialisation archive over a stream. What its bytes mean is the host's affair; they are reached through the
// IByteStream base.
class VIEWS_API IArchive : public virtual CStubBaseInterface, public virtual IByteStream
{
public:
    virtual void SetStream(IByteStream* pStream) = 0; // the archive keeps a reference of its own

protected:
    ~IArchive() = default;
};
