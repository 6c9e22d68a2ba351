#include "platform/posix/system_error.h"

#include <cerrno>
#include <system_error>

namespace tarvex {

namespace {

ErrorCode codeFor(int number)
{
    switch (number) {
    case ENOENT:
        return ErrorCode::FileNotFound;
    case ENOTDIR:
        return ErrorCode::PathNotFound;
    case EACCES:
    case EPERM:
    case EISDIR:
    case EBUSY:
    case ETXTBSY:
    case ELOOP:
        return ErrorCode::PathFileAccess;
    case EROFS:
        return ErrorCode::PermissionDenied; // as a write-protected disk
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return ErrorCode::DiskFull;
    case EEXIST:
        return ErrorCode::FileExists;
    case EINVAL:
    case EILSEQ:
    case ENAMETOOLONG:
        return ErrorCode::BadFileName;
    default:
        return ErrorCode::DeviceInputOutput;
    }
}

} // namespace

RuntimeError systemError(int number)
{
    return RuntimeError(codeFor(number), std::generic_category().message(number), number);
}

void throwSystemError() { throw systemError(errno); }

} // namespace tarvex
