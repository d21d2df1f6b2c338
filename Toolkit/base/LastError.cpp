#include "Toolkit/base/LastError.h"

#include <cerrno>

namespace
{
thread_local DWORD s_dwError = ERROR_SUCCESS;

DWORD FromErrno(int error)
{
    switch (error) {
    case ENOENT:
        return ERROR_FILE_NOT_FOUND;
    case ENOTDIR:
    case ENAMETOOLONG:
        return ERROR_PATH_NOT_FOUND;
    case EMFILE:
    case ENFILE:
        return ERROR_TOO_MANY_OPEN_FILES;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ETXTBSY:
    case ELOOP: // a link where none is followed
        return ERROR_ACCESS_DENIED;
    case EBADF:
        return ERROR_INVALID_HANDLE;
    case ENOMEM:
        return ERROR_NOT_ENOUGH_MEMORY;
    case EWOULDBLOCK:
        return ERROR_SHARING_VIOLATION;
    case EEXIST:
        return ERROR_FILE_EXISTS;
    case EINVAL:
        return ERROR_INVALID_PARAMETER;
    case ENOSPC:
    case EDQUOT:
        return ERROR_DISK_FULL;
    case EFBIG:
        return ERROR_FILE_TOO_LARGE;
    default:
        return ERROR_GEN_FAILURE;
    }
}
} // namespace

DWORD GetLastError()
{
    return s_dwError;
}

void SetLastError(DWORD dwError)
{
    s_dwError = dwError;
}

void toolkit::SetLastErrorFromErrno(int error)
{
    s_dwError = FromErrno(error);
}
