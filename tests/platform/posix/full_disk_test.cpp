// A real file system of 64 KB, mounted in a name space of a child process, and the same by counting bytes.

#include "platform/errors.h"
#include "platform/posix/faulty_calls.h"
#include "platform/posix/safe_writer.h"
#include "support/small_disk.h"
#include "support/temporary_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvex {

namespace {

constexpr int notPermitted = 77;

int errorOfSave(SafeWriter& writer, const std::string& path, const std::string& bytes)
{
    try {
        writer.save(path, bytes);
    } catch (const RuntimeError& error) {
        return error.code() == ErrorCode::DiskFull ? error.lastDllError() : -1;
    }
    return 0;
}

/// The number of the first expectation that isn't met, or 0.
int fullDiskStory(const std::string& place, FaultyCalls& calls, const std::string& recovery)
{
    const std::string file = place + "/mig.b50";
    const std::string old(8192, 'o');
    SafeWriter writer(recovery, calls);
    if (errorOfSave(writer, file, old) != 0) return 1;
    fill(place + "/filler");
    for (const std::size_t size : {1U, 8192U, 16384U, 60000U}) {
        if (errorOfSave(writer, file, std::string(size, 'n')) != ENOSPC) return 2;
        if (bytesOf(file) != old) return 3;
        if (namesIn(place).size() != 2) return 4;
    }
    calls.lockedFolder = place + "/"; // now in place: the file can't grow and gets its old contents back
    if (errorOfSave(writer, file, std::string(60000, 'n')) != ENOSPC) return 5;
    if (bytesOf(file) != old || !writer.leftCopies().empty()) return 6;
    calls.lockedFolder.clear();
    std::filesystem::remove(place + "/filler");
    if (errorOfSave(writer, file, std::string(16384, 'n')) != 0) return 7;
    return bytesOf(file) == std::string(16384, 'n') ? 0 : 8;
}

} // namespace

TEST(FullDisk, RealDiskFilledToTheBrimKeepsTheOldFile)
{
    const TemporaryDirectory disk;
    const std::string place = disk.makeDirectory("small");
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        FaultyCalls calls;
        ::_exit(mountSmallDisk(place) ? fullDiskStory(place, calls, disk / "recovery") : notPermitted);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == notPermitted) {
        GTEST_SKIP() << "this machine allows no mount; CountedBytesRunningOutKeepTheOldFile stands in";
    }
    EXPECT_EQ(WEXITSTATUS(status), 0) << "number of the expectation in fullDiskStory that isn't met";
}

TEST(FullDisk, CountedBytesRunningOutKeepTheOldFile)
{
    const TemporaryDirectory disk;
    const std::string file = disk.put("work/mig.b50", "the old file");
    const std::string bytes = "the new file\r\n";
    for (std::size_t room = 0; room < bytes.size(); ++room) {
        FaultyCalls calls;
        SafeWriter writer(disk / "recovery", calls);
        calls.room = room;
        EXPECT_EQ(errorOfSave(writer, file, bytes), ENOSPC) << room;
        EXPECT_EQ(bytesOf(file), "the old file") << room;
        EXPECT_EQ(namesIn(disk / "work").size(), 1U) << room;
    }
    FaultyCalls calls;
    SafeWriter writer(disk / "recovery", calls);
    calls.room = bytes.size();
    EXPECT_EQ(errorOfSave(writer, file, bytes), 0);
    EXPECT_EQ(bytesOf(file), bytes);
}

} // namespace tarvex
