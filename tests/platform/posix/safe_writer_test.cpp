#include "platform/posix/safe_writing.h"

#include <algorithm>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

namespace tarvex {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

std::string everyByte()
{
    std::string bytes = "\r\n\r\r\n\n";
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

} // namespace

TEST_F(SafeWriting, NewFileHoldsEveryByteAndNothingElseIsLeft)
{
    EXPECT_EQ(save(file, everyByte()), 0);
    EXPECT_EQ(bytesOf(file), everyByte());
    EXPECT_THAT(namesIn(folder), ElementsAre("mig.b50"));
}

TEST_F(SafeWriting, FileOfNoBytesIsThere)
{
    EXPECT_EQ(save(file, ""), 0);
    EXPECT_TRUE(fs::exists(file));
    EXPECT_EQ(bytesOf(file), "");
    EXPECT_EQ(save(file, "x"), 0);
    EXPECT_EQ(save(file, ""), 0);
    EXPECT_EQ(bytesOf(file), "");
}

TEST_F(SafeWriting, FileIsSyncedBeforeTheRenameAndTheFolderBehindIt)
{
    EXPECT_EQ(save(file, "new"), 0);
    EXPECT_THAT(calls.made,
                ElementsAre("lstat", "open", "flock", "write", "fsync", "close", "rename", "open", "fsync", "close"));
}

TEST_F(SafeWriting, NoProgramInheritsAFileNoLinkIsFollowedAndTheFolderIsAFolder)
{
    constexpr int always = O_CLOEXEC | O_NOCTTY;
    constexpr int fresh = always | O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW;
    constexpr int directory = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    EXPECT_EQ(save(file, "old"), 0);
    EXPECT_THAT(calls.openedWith, ElementsAre(fresh, directory));
    calls.openedWith.clear();
    calls.lockedFolder = folder + "/";
    EXPECT_EQ(save(file, "new"), 0);
    constexpr int there = always | O_NOFOLLOW | O_NONBLOCK;
    EXPECT_THAT(calls.openedWith,
                ElementsAre(fresh, there | O_WRONLY, there | O_RDONLY, fresh, directory)); // the first was refused
}

TEST_F(SafeWriting, AFolderThatAPipeHasReplacedIsNotWaitedFor)
{
    calls.beforeEach = [this] {
        if (calls.made.back() != "open" || calls.openedWith.size() != 2) return;
        fs::rename(folder, folder + ".old");
        EXPECT_EQ(::mkfifo(folder.c_str(), 0600), 0);
    };
    EXPECT_EQ(save(file, "new"), 0);
    EXPECT_EQ(calls.made.back(), "sync");
    EXPECT_EQ(bytesOf(folder + ".old/mig.b50"), "new");
}

TEST_F(SafeWriting, LargeFileInShortWritesIsWhole)
{
    calls.mostPerWrite = 1000;
    const std::string large(100'001, 'x');
    EXPECT_EQ(save(file, large), 0);
    EXPECT_EQ(bytesOf(file), large);
}

TEST_F(SafeWriting, EveryCallInterruptedOnceStillSaves)
{
    disk.put("work/mig.b50", "old");
    save(file, "old");
    const std::size_t count = calls.made.size();
    for (std::size_t at = 0; at < count; ++at) {
        calls.made.clear();
        calls.fault = {at, EINTR};
        const int error = save(file, "new " + std::to_string(at));
        const std::string name = calls.made[at];
        if (name == "open" || name == "write" || name == "fsync" || name == "close") {
            EXPECT_EQ(error, 0) << name;
            EXPECT_EQ(bytesOf(file), "new " + std::to_string(at)) << name;
        }
    }
}

TEST_F(SafeWriting, PermissionsOfTheOldFileAreKept)
{
    for (const mode_t mode : {0600U, 0640U, 0666U, 0777U, 0200U}) {
        disk.put("work/mig.b50", "old");
        ::chmod(file.c_str(), mode);
        EXPECT_EQ(save(file, "new"), 0);
        EXPECT_EQ(modeOf(file), mode);
        EXPECT_THAT(namesIn(folder), ElementsAre("mig.b50"));
        fs::remove(file);
    }
}

TEST_F(SafeWriting, OwnerOfTheOldFileIsKeptWhereAllowed)
{
    if (::geteuid() != 0) GTEST_SKIP() << "only root can give files away";
    disk.put("work/mig.b50", "old");
    ASSERT_EQ(::chown(file.c_str(), 12345, 54321), 0);
    EXPECT_EQ(save(file, "new"), 0);
    struct stat status = {};
    ::stat(file.c_str(), &status);
    EXPECT_EQ(status.st_uid, 12345U);
    EXPECT_EQ(status.st_gid, 54321U);
}

TEST_F(SafeWriting, ANewFileMayBeReadAndWrittenByAllWhomTheMaskLets)
{
    const mode_t old = ::umask(0);
    EXPECT_EQ(save(file, "new"), 0);
    ::umask(old);
    EXPECT_EQ(modeOf(file), 0666U);
}

TEST_F(SafeWriting, NewFileFollowsTheUmask)
{
    const mode_t old = ::umask(027);
    EXPECT_EQ(save(file, "new"), 0);
    ::umask(old);
    EXPECT_EQ(modeOf(file), 0640U);
}

TEST_F(SafeWriting, SymbolicLinksAreFollowedAndStay)
{
    const std::string real = disk.put("elsewhere/real.b50", "old");
    fs::create_symlink(real, folder + "/absolute");
    fs::create_symlink("../elsewhere/real.b50", folder + "/relative");
    fs::create_symlink("relative", folder + "/chain");
    for (const std::string link : {"absolute", "relative", "chain"}) {
        EXPECT_EQ(save(folder + "/" + link, "by " + link), 0);
        EXPECT_EQ(bytesOf(real), "by " + link);
        EXPECT_TRUE(fs::is_symlink(folder + "/" + link));
    }
    EXPECT_THAT(namesIn(disk / "elsewhere"), ElementsAre("real.b50"));
}

TEST_F(SafeWriting, DanglingSymbolicLinkGetsItsFile)
{
    fs::create_symlink("mig.b50", folder + "/link");
    EXPECT_EQ(save(folder + "/link", "new"), 0);
    EXPECT_EQ(bytesOf(file), "new");
    EXPECT_TRUE(fs::is_symlink(folder + "/link"));
}

TEST_F(SafeWriting, CircleOfSymbolicLinksIsRefused)
{
    fs::create_symlink("b", folder + "/a");
    fs::create_symlink("a", folder + "/b");
    EXPECT_EQ(save(folder + "/a", "new"), ELOOP);
}

TEST_F(SafeWriting, OfTwoHardLinksOnlyTheOneWrittenToChanges)
{
    disk.put("work/other", "old");
    fs::create_hard_link(folder + "/other", file);
    EXPECT_EQ(save(file, "new"), 0);
    EXPECT_EQ(bytesOf(file), "new");
    EXPECT_EQ(bytesOf(folder + "/other"), "old");
}

TEST_F(SafeWriting, DirectoryPipeAndDeviceAreRefusedUntouched)
{
    ASSERT_EQ(::mkfifo((folder + "/pipe").c_str(), 0600), 0);
    EXPECT_EQ(save(folder, "new"), EISDIR);
    EXPECT_EQ(save(folder + "/", "new"), EISDIR);
    EXPECT_EQ(save(folder + "/pipe", "new"), EINVAL);
    EXPECT_EQ(text, "Not a regular file: " + folder + "/pipe");
    EXPECT_EQ(save("/dev/null", "new"), EINVAL);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_TRUE(fs::is_fifo(folder + "/pipe"));
}

TEST_F(SafeWriting, FileThatNobodyMayWriteIsRefusedEvenForRoot)
{
    disk.put("work/mig.b50", "old");
    ::chmod(file.c_str(), 0444);
    EXPECT_EQ(save(file, "new"), EACCES);
    EXPECT_EQ(bytesOf(file), "old");
}

TEST_F(SafeWriting, MissingFolderOrBadPathIsAnError)
{
    EXPECT_EQ(save(disk / "none/mig.b50", "new"), ENOENT);
    EXPECT_EQ(save(file + "/mig.b50", "new"), ENOENT);
    disk.put("work/mig.b50", "old");
    EXPECT_EQ(save(file + "/mig.b50", "new"), ENOTDIR);
    EXPECT_EQ(save("", "new"), EINVAL);
    EXPECT_EQ(save(folder + std::string("/a\0b", 4), "new"), EINVAL);
    EXPECT_EQ(save(folder + "/" + std::string(256, 'x'), "new"), ENAMETOOLONG);
    EXPECT_THAT(namesIn(folder), ElementsAre("mig.b50"));
}

TEST_F(SafeWriting, LongestPossibleNameIsSaved)
{
    const std::string longest = folder + "/" + std::string(255, 'x');
    EXPECT_EQ(save(longest, "new"), 0);
    EXPECT_EQ(bytesOf(longest), "new");
}

TEST_F(SafeWriting, FolderThatTakesNoFileIsWrittenToDirectlyAndNoCopyStays)
{
    disk.put("work/mig.b50", "the old and longer contents");
    calls.lockedFolder = folder + "/";
    EXPECT_EQ(save(file, "new"), 0);
    EXPECT_EQ(bytesOf(file), "new");
    EXPECT_THAT(namesIn(disk / "recovery"), IsEmpty());
}

TEST_F(SafeWriting, CopyIsSafeOnDiskBeforeADirectWriteBegins)
{
    disk.put("work/mig.b50", "old");
    calls.lockedFolder = folder + "/";
    EXPECT_EQ(save(file, "new"), 0);
    const auto mkdir = std::find(calls.made.begin(), calls.made.end(), "mkdir");
    EXPECT_THAT(std::vector<std::string>(mkdir, calls.made.end()),
                ElementsAre("mkdir", "open", "flock", "write", "fsync", "rename", "open", "fsync", "close", // the copy
                            "write", "ftruncate", "fsync", "close", "unlink"));
}

TEST_F(SafeWriting, FileThatCantBeReplacedIsWrittenToDirectly)
{
    disk.put("work/mig.b50", "old");
    save(file, "old");
    const auto at = std::find(calls.made.begin(), calls.made.end(), "rename") - calls.made.begin();
    for (const int error : {EBUSY, EPERM, EACCES, EXDEV}) {
        calls.made.clear();
        calls.fault = {static_cast<std::size_t>(at), error};
        EXPECT_EQ(save(file, "new " + std::to_string(error)), 0);
        EXPECT_EQ(bytesOf(file), "new " + std::to_string(error));
        EXPECT_THAT(namesIn(folder), ElementsAre("mig.b50"));
    }
}

TEST_F(SafeWriting, NewFileInAFolderThatTakesNoneIsRefused)
{
    calls.lockedFolder = folder + "/";
    EXPECT_EQ(save(file, "new"), EACCES);
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(SafeWriting, WithoutAPlaceForTheCopyTheFileStaysUntouched)
{
    disk.put("work/mig.b50", "old");
    SafeWriter homeless(disk / "none/recovery", calls);
    calls.lockedFolder = folder + "/";
    EXPECT_THROW(homeless.save(file, "new"), RuntimeError);
    EXPECT_EQ(bytesOf(file), "old");
}

TEST_F(SafeWriting, DirectWriteThatCantBeUndoneReportsWhereTheCopyIs)
{
    disk.put("work/mig.b50", "old contents");
    calls.lockedFolder = folder + "/";
    calls.room = std::string("old contents").size() + 3; // enough for the copy only
    EXPECT_EQ(save(file, "new contents"), ENOSPC);
    ASSERT_THAT(writer.leftCopies(), testing::SizeIs(1));
    EXPECT_EQ(text, "No space left on device. The file is damaged; a copy of it is " + writer.leftCopies().front());
    EXPECT_EQ(bytesOf(writer.leftCopies().front()), "old contents");
}

TEST_F(SafeWriting, WritesThatMakeNoProgressAreAnError)
{
    struct StuckCalls final : SystemCalls {
        int left = 1000; ///< writes of nothing
        ssize_t write(int opened, const void* bytes, std::size_t size) override
        {
            return left-- > 0 ? 0 : SystemCalls::write(opened, bytes, size);
        }
    } stuck;
    SafeWriter stuckWriter{disk / "recovery", stuck};
    disk.put("work/mig.b50", "old");
    try {
        stuckWriter.save(file, "new");
        ADD_FAILURE();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.lastDllError(), EIO);
    }
    EXPECT_GT(stuck.left, 990) << "given up at once";
    EXPECT_EQ(bytesOf(file), "old");
}

TEST_F(SafeWriting, FolderThatCantBeReadIsSyncedAsAWhole)
{
    save(file, "old");
    const auto last = std::find(calls.made.rbegin(), calls.made.rend(), "open");
    const std::size_t at = static_cast<std::size_t>(calls.made.rend() - last) - 1;
    calls.made.clear();
    calls.fault = {at, EACCES};
    save(disk / "work/other", "new");
    EXPECT_EQ(calls.made.back(), "sync");
}

TEST_F(SafeWriting, TakenTemporaryNameIsLeftAloneAndAnotherOneTried)
{
    const std::string taken = disk.put("work/.tarvex-save-0000000000000007", "somebody else's");
    const timeval future[] = {{4'000'000'000, 0}, {4'000'000'000, 0}};
    ::utimes(taken.c_str(), future);
    calls.randomNumbers = {7, 7, 8};
    EXPECT_EQ(save(file, "new"), 0);
    EXPECT_EQ(bytesOf(file), "new");
    EXPECT_EQ(bytesOf(taken), "somebody else's");
}

TEST_F(SafeWriting, NothingIsRemovedThatWasNotMade)
{
    disk.put("work/mig.b50", "old");
    for (const int error : {EEXIST, EMFILE, ENOSPC}) {
        calls.made.clear();
        calls.fault = {2, error, true}; // every open
        EXPECT_EQ(save(file, "new"), error);
        EXPECT_EQ(std::count(calls.made.begin(), calls.made.end(), "unlink"), 0) << error;
        EXPECT_EQ(calls.made[2], "open");
        EXPECT_LE(calls.made.size(), 110U) << "it ends, however many names are taken";
    }
    EXPECT_EQ(bytesOf(file), "old");
}

TEST_F(SafeWriting, PrivateFileIsForItsOwnerAlone)
{
    writer.savePrivate(file, "new");
    EXPECT_EQ(modeOf(file), 0600U);
    ::chmod(file.c_str(), 0666);
    mode_t widest = 0;
    calls.beforeEach = [&] {
        for (const std::string& name : namesIn(folder)) {
            if (name != "mig.b50") widest |= modeOf(folder + "/" + name);
        }
    };
    writer.savePrivate(file, "newer");
    EXPECT_EQ(modeOf(file), 0600U);
    EXPECT_EQ(widest, 0600U);
    EXPECT_EQ(bytesOf(file), "newer");
}

TEST_F(SafeWriting, PrivateFileIsPrivateBeforeItIsWrittenDirectly)
{
    disk.put("work/mig.b50", "old");
    ::chmod(file.c_str(), 0666);
    calls.lockedFolder = folder + "/";
    mode_t atWrite = 0;
    calls.beforeEach = [&] {
        if (calls.made.back() == "ftruncate") atWrite = modeOf(file);
    };
    writer.savePrivate(file, "new");
    EXPECT_EQ(atWrite, 0600U);
    EXPECT_EQ(bytesOf(file), "new");
}

TEST_F(SafeWriting, PrivateFileThatCannotBeMadePrivateIsNotWritten)
{
    disk.put("work/mig.b50", "old");
    ::chmod(file.c_str(), 0666);
    calls.lockedFolder = folder + "/";
    writer.savePrivate(file, "old");
    const auto at = std::find(calls.made.begin(), calls.made.end(), "fchmod") - calls.made.begin();
    ::chmod(file.c_str(), 0666);
    calls.made.clear();
    calls.fault = {static_cast<std::size_t>(at), EPERM};
    EXPECT_THROW(writer.savePrivate(file, "new"), RuntimeError);
    EXPECT_EQ(bytesOf(file), "old");
}

TEST_F(SafeWriting, CopyOfAPrivateFileInAnOpenRecoveryDirectoryIsPrivate)
{
    disk.put("work/mig.b50", "old");
    ::chmod(file.c_str(), 0600);
    ::chmod(disk.makeDirectory("recovery").c_str(), 0755);
    calls.lockedFolder = folder + "/";
    mode_t widest = 0;
    calls.beforeEach = [&] {
        for (const std::string& name : namesIn(disk / "recovery")) widest |= modeOf(disk / ("recovery/" + name));
    };
    EXPECT_EQ(save(file, "new"), 0);
    EXPECT_EQ(widest, 0600U);
}

TEST_F(SafeWriting, CopyIsWholeAndPrivateAndReplacesNothing)
{
    const std::string bytes(200'000, 'x');
    disk.put("work/mig.b50", bytes);
    const std::string copy = folder + "/copy";
    writer.copyPrivate(file, copy);
    EXPECT_EQ(bytesOf(copy), bytes);
    EXPECT_EQ(modeOf(copy), 0600U);
    disk.put("work/mig.b50", "newer");
    EXPECT_THROW(writer.copyPrivate(file, copy), RuntimeError);
    EXPECT_EQ(bytesOf(copy), bytes);
}

TEST_F(SafeWriting, CopyThatFailsAtAnyCallLeavesNothing)
{
    const std::string bytes(100'000, 'x');
    disk.put("work/mig.b50", bytes);
    const std::string copy = folder + "/copy";
    writer.copyPrivate(file, copy);
    const std::vector<std::string> made = calls.made;
    for (std::size_t at = 0; at < made.size(); ++at) {
        fs::remove(copy);
        calls.made.clear();
        calls.fault = {at, EIO};
        bool failed = false;
        try {
            writer.copyPrivate(file, copy);
        } catch (const RuntimeError&) {
            failed = true;
        }
        EXPECT_EQ(failed, !fs::exists(copy)) << made[at] << " number " << at;
        if (!failed) {
            EXPECT_EQ(bytesOf(copy), bytes) << made[at] << " number " << at;
        }
    }
    EXPECT_EQ(bytesOf(file), bytes);
}

TEST_F(SafeWriting, CopyOfAPipeOrDirectoryIsRefused)
{
    ASSERT_EQ(::mkfifo((folder + "/pipe").c_str(), 0600), 0);
    EXPECT_THROW(writer.copyPrivate(folder + "/pipe", folder + "/copy"), RuntimeError);
    EXPECT_THROW(writer.copyPrivate(folder, folder + "/copy"), RuntimeError);
    EXPECT_FALSE(fs::exists(folder + "/copy"));
}

} // namespace tarvex
