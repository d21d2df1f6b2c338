// Why the last call of a memory, file or environment function failed.
#pragma once

#include "Toolkit/base/Types.h"

inline constexpr DWORD ERROR_SUCCESS = 0;
inline constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
inline constexpr DWORD ERROR_PATH_NOT_FOUND = 3;
inline constexpr DWORD ERROR_TOO_MANY_OPEN_FILES = 4;
inline constexpr DWORD ERROR_ACCESS_DENIED = 5;
inline constexpr DWORD ERROR_INVALID_HANDLE = 6;
inline constexpr DWORD ERROR_NOT_ENOUGH_MEMORY = 8;
inline constexpr DWORD ERROR_GEN_FAILURE = 31; // a failure without a number of its own
inline constexpr DWORD ERROR_SHARING_VIOLATION = 32;
inline constexpr DWORD ERROR_FILE_EXISTS = 80;
inline constexpr DWORD ERROR_INVALID_PARAMETER = 87;
inline constexpr DWORD ERROR_DISK_FULL = 112;
inline constexpr DWORD ERROR_NOT_LOCKED = 158;
inline constexpr DWORD ERROR_ENVVAR_NOT_FOUND = 203;
inline constexpr DWORD ERROR_FILE_TOO_LARGE = 223;

// The calling thread's own. A call that succeeds may leave the former value, except where its comment says so.
TOOLKIT_API DWORD GetLastError();
TOOLKIT_API void SetLastError(DWORD dwError);

namespace toolkit
{
TOOLKIT_API void SetLastErrorFromErrno(int error); // the number that tells the same
} // namespace toolkit
