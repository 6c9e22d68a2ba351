#include "platform/posix/file_descriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>
#include <utility>

namespace tarvex {
namespace {

int openNull() { return ::open("/dev/null", O_RDONLY | O_CLOEXEC); }
bool isOpen(int number) { return ::fcntl(number, F_GETFD) >= 0; }

TEST(FileDescriptor, ClosesItsFileAtTheEndOfItsLife)
{
    const int number = openNull();
    {
        const FileDescriptor file(number);
        EXPECT_TRUE(file);
        EXPECT_EQ(file.get(), number);
        EXPECT_TRUE(isOpen(number));
    }
    EXPECT_FALSE(isOpen(number));
}

TEST(FileDescriptor, ReleasedFileStaysOpen)
{
    const int number = openNull();
    FileDescriptor(number).release();
    EXPECT_TRUE(isOpen(number));
    ::close(number);
}

TEST(FileDescriptor, MovedFileBelongsToTheNewOwnerAlone)
{
    const int first = openNull();
    const int second = openNull();
    FileDescriptor from(first);
    FileDescriptor to(second);
    to = std::move(from);
    EXPECT_FALSE(from); // NOLINT(bugprone-use-after-move): a moved one is empty
    EXPECT_EQ(to.get(), first);
    EXPECT_TRUE(isOpen(first));
    EXPECT_FALSE(isOpen(second));
    const FileDescriptor last(std::move(to));
    EXPECT_EQ(last.get(), first);
    EXPECT_TRUE(isOpen(first));
}

TEST(FileDescriptor, ClosingKeepsTheErrorThatIsToBeReported)
{
    FileDescriptor file(openNull());
    ASSERT_EQ(::close(file.get()), 0);
    errno = ENOSPC;
    file.reset(); // fails with EBADF
    EXPECT_EQ(errno, ENOSPC);
    EXPECT_FALSE(file);
}

} // namespace
} // namespace tarvex
