#include "platform/posix/posix_append_file.h"

#include "faulty_calls.h"
#include "platform/posix/posix_files.h"
#include "support/eventually.h"
#include "support/temporary_directory.h"

#include <aio.h>
#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvex {
namespace {

std::filesystem::perms modeOf(const std::string& path) { return std::filesystem::status(path).permissions(); }

TEST(PosixAppendFile, IsThereAtOnceForItsOwnerAlone)
{
    const TemporaryDirectory disk;
    SystemCalls calls;
    PosixAppendFile file(calls, disk / "Recover/1.journal");
    file.append("one ");
    EXPECT_EQ(bytesOf(disk / "Recover/1.journal"), "one ");
    file.append("two");
    EXPECT_EQ(bytesOf(disk / "Recover/1.journal"), "one two");
    EXPECT_EQ(modeOf(disk / "Recover/1.journal"), std::filesystem::perms(0600));
    EXPECT_EQ(modeOf(disk / "Recover"), std::filesystem::perms(0700));
}

TEST(PosixAppendFile, IsOpenForItsProgramAloneAndOnlyGrows)
{
    const TemporaryDirectory disk;
    FaultyCalls calls;
    PosixAppendFile file(calls, disk / "Recover/1.journal");
    constexpr int always = O_CLOEXEC | O_NOCTTY;
    constexpr int fresh = always | O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW;
    EXPECT_EQ(calls.openedWith, (std::vector<int>{fresh | O_APPEND, always | O_RDONLY | O_DIRECTORY}));
    calls.openedWith.clear();
    file.append("one");
    EXPECT_EQ(calls.openedWith, std::vector<int>{fresh});
    file.append("two");
    EXPECT_EQ(calls.openedWith.size(), 1U) << "written to as it is";
}

TEST(PosixAppendFile, IsNeverAnotherFile)
{
    const TemporaryDirectory disk;
    const std::string path = disk.put("Recover/1.journal", "mine");
    std::filesystem::create_symlink(path, disk / "Recover/2.journal");
    const DriveMap drives({"", "", disk.path(), disk.path()});
    SystemCalls calls;
    SafeWriter writer(disk / "copies", calls);
    PosixFiles files(drives, writer);
    for (const char* name : {"/Recover/1.journal", "/Recover/2.journal"}) {
        try {
            files.createAppendFile(drives.toDos(disk.path() + name));
            FAIL() << name;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.code(), ErrorCode::FileExists);
        }
    }
    EXPECT_EQ(bytesOf(path), "mine");
}

TEST(PosixAppendFile, GrowsThroughTheFileSystemAndIsRemovedWhileOpen)
{
    const TemporaryDirectory disk;
    const DriveMap drives({"", "", disk.path(), disk.path()});
    SystemCalls calls;
    SafeWriter writer(disk / "copies", calls);
    PosixFiles files(drives, writer);
    const std::string path = drives.toDos(disk.path()) + "\\Recover\\1.journal";
    const auto file = files.createAppendFile(path);
    file->append("a");
    EXPECT_EQ(files.read(path), "a");
    files.removeFile(path);
    file->append("b");
    EXPECT_FALSE(files.fileExists(path));
}

TEST(PosixAppendFile, SyncsAgainAndAgain)
{
    const TemporaryDirectory disk;
    SystemCalls calls;
    PosixAppendFile file(calls, disk / "Recover/1.journal");
    for (int i = 0; i < 20; ++i) {
        file.append("x");
        file.sync(); // false while the disk is busy
    }
    EXPECT_EQ(bytesOf(disk / "Recover/1.journal").size(), 20U);
}

TEST(PosixAppendFile, AFullDiskIsReportedAndKeepsWhatFits)
{
    const TemporaryDirectory disk;
    FaultyCalls calls;
    PosixAppendFile file(calls, disk / "Recover/1.journal");
    file.append("whole");
    calls.room = 3;
    try {
        file.append("not whole");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.code(), ErrorCode::DiskFull);
    }
    EXPECT_EQ(bytesOf(disk / "Recover/1.journal"), "wholenot");
}

TEST(PosixAppendFile, EachFailedCallIsReportedAndLeavesNoFileOpen)
{
    for (const char* failing : {"mkdir", "open"}) {
        const TemporaryDirectory disk;
        FaultyCalls calls;
        calls.fault = FaultyCalls::Fault{failing == std::string("mkdir") ? 0U : 1U, EACCES};
        EXPECT_THROW(PosixAppendFile(calls, disk / "Recover/1.journal"), RuntimeError) << failing;
        EXPECT_EQ(bytesOf(disk / "Recover/1.journal"), "(missing)");
    }
}

TEST(PosixAppendFile, IsEmptyUntilAllOfItsBeginningIsThere)
{
    const TemporaryDirectory disk;
    FaultyCalls calls;
    PosixAppendFile file(calls, disk / "Recover/1.journal");
    EXPECT_EQ(bytesOf(disk / "Recover/1.journal"), "");
    calls.room = 3;
    EXPECT_THROW(file.append("the beginning"), RuntimeError);
    EXPECT_EQ(bytesOf(disk / "Recover/1.journal"), "") << "none of it";
    EXPECT_EQ(namesIn(disk / "Recover"), std::vector<std::string>{"1.journal"});
    calls.room = 100;
    file.append("the beginning");
    EXPECT_EQ(bytesOf(disk / "Recover/1.journal"), "the beginning");
}

TEST(PosixAppendFile, AFolderThatCannotBeOpenedForSyncingDoesNoHarm)
{
    const TemporaryDirectory disk;
    FaultyCalls calls;
    calls.fault = FaultyCalls::Fault{2, EACCES};
    PosixAppendFile file(calls, disk / "Recover/1.journal");
    ASSERT_EQ(calls.made.at(2), "open");
    file.append("x");
    EXPECT_TRUE(file.sync());
}

TEST(PosixAppendFile, AFolderThatCannotBeSyncedDoesNoHarm)
{
    const TemporaryDirectory disk;
    FaultyCalls calls;
    calls.backgroundSyncs = false;
    PosixAppendFile file(calls, disk / "Recover/1.journal");
    file.append("x");
    const std::size_t folders = calls.made.size();
    calls.fault = FaultyCalls::Fault{folders, EIO};
    EXPECT_TRUE(file.sync());
    ASSERT_EQ(calls.made.size(), folders + 2);
    EXPECT_EQ(calls.made[folders], "fsync");
    EXPECT_EQ(calls.made[folders + 1], "fsync") << "the file itself";
    EXPECT_TRUE(file.isSynced());
}

/// A file system that refuses to sync a folder, in the background.
struct NoFolderSyncs final : SystemCalls {
    int ends[2] = {};
    std::vector<aiocb*> requests;

    NoFolderSyncs() { EXPECT_EQ(::pipe(ends), 0); }
    ~NoFolderSyncs() override
    {
        ::close(ends[0]);
        ::close(ends[1]);
    }
    int startSync(aiocb& request) override
    {
        struct stat status = {};
        ::fstat(request.aio_fildes, &status);
        if (S_ISDIR(status.st_mode)) request.aio_fildes = ends[1]; // no disk takes the bytes of a pipe
        requests.push_back(&request);
        return SystemCalls::startSync(request);
    }
    bool haveEnded() const
    {
        return std::all_of(requests.begin(), requests.end(),
                           [](const aiocb* request) { return ::aio_error(request) != EINPROGRESS; });
    }
};

TEST(PosixAppendFile, IsSyncedAlthoughTheDiskRefusesToSyncItsFolder)
{
    const TemporaryDirectory disk;
    NoFolderSyncs calls;
    PosixAppendFile file(calls, disk / "Recover/1.journal");
    file.append("x");
    EXPECT_TRUE(file.sync());
    ASSERT_EQ(calls.requests.size(), 2U);
    ASSERT_TRUE(eventually([&] { return calls.haveEnded(); }));
    EXPECT_TRUE(file.isSynced()) << "at once";
    EXPECT_TRUE(file.sync());
    EXPECT_EQ(calls.requests.size(), 3U) << "the folder isn't tried again";
}

TEST(PosixAppendFile, AFailedSyncIsReported)
{
    const TemporaryDirectory disk;
    FaultyCalls calls;
    calls.backgroundSyncs = false;
    PosixAppendFile file(calls, disk / "Recover/1.journal");
    EXPECT_TRUE(file.sync());
    calls.fault = FaultyCalls::Fault{calls.made.size(), EIO};
    EXPECT_THROW(file.sync(), RuntimeError);
}

TEST(PosixAppendFile, SaysWhenTheDiskHasIt)
{
    const TemporaryDirectory disk;
    SystemCalls calls;
    PosixAppendFile file(calls, disk / "Recover/1.journal");
    EXPECT_TRUE(file.isSynced()) << "nothing was given to the disk yet";
    file.append("x");
    EXPECT_TRUE(file.sync());
    ASSERT_TRUE(eventually([&] { return file.isSynced(); }));
    EXPECT_TRUE(file.sync()) << "not busy any more";
}

TEST(BackgroundSync, EndsOnceAndReportsItsFailureOnce)
{
    int ends[2] = {};
    ASSERT_EQ(::pipe(ends), 0); // no disk takes its bytes
    SystemCalls calls;
    BackgroundSync sync(calls, ends[1]);
    EXPECT_TRUE(sync.hasEnded()) << "none was started";
    sync.start();
    EXPECT_THROW(eventually([&] { return sync.hasEnded(); }), RuntimeError);
    EXPECT_TRUE(sync.hasEnded());
    ::close(ends[0]);
    ::close(ends[1]);
}

TEST(BackgroundSync, ReportsAFailureAtTheNextCall)
{
    int ends[2] = {};
    ASSERT_EQ(::pipe(ends), 0); // no disk takes its bytes
    SystemCalls calls;
    BackgroundSync sync(calls, ends[1]);
    EXPECT_TRUE(sync.start());
    EXPECT_TRUE(eventually([&] {
        try {
            sync.start();
        } catch (const RuntimeError&) {
            return true;
        }
        return false;
    }));
    ::close(ends[0]);
    ::close(ends[1]);
}

TEST(BackgroundSync, OfAFileThatIsClosedFails)
{
    SystemCalls calls;
    BackgroundSync sync(calls, -1);
    EXPECT_THROW(sync.start(), RuntimeError);
}

} // namespace
} // namespace tarvex
