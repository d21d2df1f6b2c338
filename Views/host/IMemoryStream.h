#pragma once

#include "Views/host/IByteStream.h"

// A stream whose bytes are in memory. Empty when it is made.
class VIEWS_API IMemoryStream : public virtual CStubBaseInterface, public virtual IByteStream
{
protected:
    ~IMemoryStream() = default;
};
