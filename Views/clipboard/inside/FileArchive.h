// Inside the library: an archive with the stream that it was read into.
#pragma once

#include "Toolkit/base/String.h"
#include "Views/host/IArchive.h"
#include "Views/host/StubRef.h"

#include <optional>

namespace views
{

// The path that a handle holds, to the end of its block where no zero ends it. Nothing for a handle that cannot be
// locked. Raises CMemoryException.
std::optional<CString> PathIn(void* hGlobal);

struct FileArchive
{
    CStubRef<IByteStream> pStream;
    CStubRef<IArchive> pArchive; // over that stream
};
FileArchive ReadTransferFile(const char* pszPath); // as ArchiveFromFile does; both empty where that gives none

// Another archive over the stream, which stands at its first byte. Empty when the host makes none.
CStubRef<IArchive> ArchiveOver(const CStubRef<IByteStream>& pStream);

} // namespace views
