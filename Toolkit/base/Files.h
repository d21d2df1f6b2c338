// Files, temporary names and the environment, under their standard names.
//
// Paths are UTF-8 with the machine's separator. What fails says why in GetLastError. Any thread may call.
#pragma once

#include "Toolkit/base/LastError.h"

inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(INT_PTR{-1});

// CreateFile: what for.
inline constexpr DWORD GENERIC_READ = 0x80000000;
inline constexpr DWORD GENERIC_WRITE = 0x40000000;

// CreateFile: with whom. None: nobody else may have the file open, in this process or another. Any of them counts as
// all: with every other opener that shares, too.
inline constexpr DWORD FILE_SHARE_READ = 0x1;
inline constexpr DWORD FILE_SHARE_WRITE = 0x2;
inline constexpr DWORD FILE_SHARE_DELETE = 0x4;

// CreateFile: whether the file must be there or not.
inline constexpr DWORD CREATE_NEW = 1;    // must not: ERROR_FILE_EXISTS, also for a link of that name
inline constexpr DWORD CREATE_ALWAYS = 2; // either; emptied, once nobody else has it open
inline constexpr DWORD OPEN_EXISTING = 3; // must
inline constexpr DWORD OPEN_ALWAYS = 4;   // either; kept

// CreateFile: accepted, and without effect.
inline constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;
inline constexpr DWORD FILE_ATTRIBUTE_TEMPORARY = 0x100;

inline constexpr DWORD INVALID_FILE_SIZE = 0xFFFFFFFF;

struct SECURITY_ATTRIBUTES;
struct OVERLAPPED;

// A handle that CloseHandle gives back; INVALID_HANDLE_VALUE when the file cannot be had as asked. A new file is
// readable and writable by its owner only. A link of that name is never followed, and what is no ordinary file
// (a folder, a pipe, a device) is refused without waiting for it. CREATE_ALWAYS empties only a file of the user's own
// that has no second name. The security attributes and the template must be NULL.
TOOLKIT_API HANDLE CreateFile(LPCSTR pszName, DWORD dwAccess, DWORD dwShareMode, SECURITY_ATTRIBUTES* pSecurity,
                              DWORD dwDisposition, DWORD dwFlagsAndAttributes, HANDLE hTemplate);
// Fewer bytes than asked for, and TRUE, at the end of the file. The OVERLAPPED must be NULL, here and below.
TOOLKIT_API BOOL ReadFile(HANDLE hFile, void* pBuffer, DWORD nBytes, DWORD* pnRead, OVERLAPPED* pOverlapped);
// FALSE when not all could be written; *pnWritten then says how much was.
TOOLKIT_API BOOL WriteFile(HANDLE hFile, const void* pBuffer, DWORD nBytes, DWORD* pnWritten, OVERLAPPED* pOverlapped);
// The low 32 bits; the high ones into *pdwHigh, which may be NULL. INVALID_FILE_SIZE may be a size's low bits:
// GetLastError tells, which is ERROR_SUCCESS then.
TOOLKIT_API DWORD GetFileSize(HANDLE hFile, DWORD* pdwHigh);
TOOLKIT_API BOOL CloseHandle(HANDLE hFile); // FALSE for a stale handle
// Takes the name away, also while the file is open: who has it open keeps its content. Of a link, the link itself.
TOOLKIT_API BOOL DeleteFile(LPCSTR pszName);

// An absolute path that nothing has and nobody can guess: the folder, the prefix, 26 letters and digits drawn at
// random. Allocated with malloc: the caller frees it. A folder that is NULL, empty or not there is replaced by the
// machine's own for temporary files: $TMPDIR, else /tmp. NULL when memory runs out.
TOOLKIT_API char* _tempnam(const char* pszFolder, const char* pszPrefix);

// How long the variable's value is, without its terminating zero, when it fits in the buffer of nSize bytes; else
// the size of buffer that it needs. 0 when the variable is not set (ERROR_ENVVAR_NOT_FOUND) or empty.
TOOLKIT_API DWORD GetEnvironmentVariableA(LPCSTR pszName, LPSTR pszBuffer, DWORD nSize);

inline constexpr int MAX_PATH = 4096; // bytes, the terminating zero included
// Appends the machine's separator to a path that is neither empty nor ends in one; its terminating zero. The buffer
// has room for one more byte. NULL, and nothing changes, when the path would outgrow MAX_PATH.
TOOLKIT_API LPSTR PathAddBackslashA(LPSTR pszPath);

namespace toolkit
{
TOOLKIT_API int CountOpenFiles(); // handles of CreateFile alive; what tests compare
} // namespace toolkit
