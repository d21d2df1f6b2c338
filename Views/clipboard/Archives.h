// Archives, and how their bytes travel: in a transfer file, and by a handle that holds the file's path.
//
// A transfer file holds exactly an archive's bytes. It lies in the directory that the environment variable "TEMP"
// names, or in the machine's own for temporary files when there is no such directory, under a name of its own that
// begins with "AE" and that nobody can guess; its owner alone may read and write it. A path handle is a block of global
// memory with that file's path and a terminating zero, and nothing else.
//
// What the bytes mean is the host's affair. Every archive handed out carries a reference that the caller releases.
// NULL, or the empty path, is the only sign of a failure; whatever was made until then is gone. The time it takes is
// that of reading or writing the bytes once.
#pragma once

#include "Toolkit/base/String.h"
#include "Views/host/Api.h"

class IArchive;
struct STGMEDIUM;

// A new, empty archive over a new memory stream; NULL when the host makes no such stream or archive.
VIEWS_API IArchive* ConstructMemoryArchive();

// An archive with the file's whole content. NULL for a file that is missing, empty, opened by someone else, larger than
// an archive can be, or not read to its end.
VIEWS_API IArchive* ArchiveFromFile(const char* lpszPath);
// An archive of the transfer file whose path the handle holds. The handle stays the caller's.
VIEWS_API IArchive* ArchiveFromHGLOBAL(void* hGlobal);
// An archive of what a data object gave: a path handle (TYMED_HGLOBAL) or a transfer file (TYMED_FILE); NULL for any
// other medium. Only read: the caller releases the medium.
VIEWS_API IArchive* ArchiveFromStgMedium(const STGMEDIUM& medium);

// Writes the archive to a new transfer file, which is the caller's to delete, and returns its full path. Empty for
// NULL, for a stream without a block of bytes, and when the file cannot be created or written to its end: no file is
// left then. Running out of memory is reported.
VIEWS_API CString FileFromArchive(IArchive* pArchive);
// The same, giving a new path handle. The caller frees it, and deletes the file.
VIEWS_API void* HGLOBALFromArchive(IArchive* pArchive);
