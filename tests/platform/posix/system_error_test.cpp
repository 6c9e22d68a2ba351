#include "platform/posix/system_error.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <system_error>

namespace tarvex {
namespace {

TEST(SystemError, HasTheCodeThatTheProgramKnowsAndTheSystemsWords)
{
    const std::pair<int, ErrorCode> codes[] = {
        {ENOENT, ErrorCode::FileNotFound},    {ENOTDIR, ErrorCode::PathNotFound},
        {EACCES, ErrorCode::PathFileAccess},  {EPERM, ErrorCode::PathFileAccess},
        {EISDIR, ErrorCode::PathFileAccess},  {EBUSY, ErrorCode::PathFileAccess},
        {ETXTBSY, ErrorCode::PathFileAccess}, {ELOOP, ErrorCode::PathFileAccess},
        {EROFS, ErrorCode::PermissionDenied}, {ENOSPC, ErrorCode::DiskFull},
        {EDQUOT, ErrorCode::DiskFull},        {EFBIG, ErrorCode::DiskFull},
        {EEXIST, ErrorCode::FileExists},      {EINVAL, ErrorCode::BadFileName},
        {EILSEQ, ErrorCode::BadFileName},     {ENAMETOOLONG, ErrorCode::BadFileName},
        {EIO, ErrorCode::DeviceInputOutput},  {EMFILE, ErrorCode::DeviceInputOutput}};
    for (const auto& [number, code] : codes) {
        const RuntimeError error = systemError(number);
        EXPECT_EQ(error.code(), code) << error.what();
        EXPECT_EQ(error.lastDllError(), number);
        EXPECT_EQ(error.what(), std::generic_category().message(number));
    }
}

TEST(ThrowSystemError, ThrowsWhatTheLastCallReported)
{
    try {
        errno = ENOSPC;
        throwSystemError();
        ADD_FAILURE();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.code(), ErrorCode::DiskFull);
        EXPECT_EQ(error.lastDllError(), ENOSPC);
    }
}

} // namespace
} // namespace tarvex
