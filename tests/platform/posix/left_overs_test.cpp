// What a save that was cut short leaves behind: temporary files, which later saves sweep, and copies, which they
// report.
#include "platform/posix/safe_writing.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <unistd.h>

namespace tarvex {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(SafeWriting, CopiesThatAreLeftAreListedByName)
{
    std::vector<std::string> names;
    for (const char letter : std::string("qwertyuiop"))
        names.push_back(disk.put("recovery/" + std::string(1, letter) + ".tarvex-copy-0123456789abcdef", "old"));
    std::ranges::sort(names);
    EXPECT_EQ(writer.leftCopies(), names);
}

TEST_F(SafeWriting, LeftOversAreSweptAtTheFirstSaveAlsoWhenTheirProcessNumberIsReused)
{
    setOld(disk.put("work/.tarvex-save-0123456789abcdef", "half"));
    const std::string living = std::to_string(::getppid()); // the number of another process today
    setOld(disk.put("work/.tarvex-save-" + living + "-1", "half, of an earlier version"));
    EXPECT_EQ(save(file, "new"), 0);
    EXPECT_THAT(namesIn(folder), ElementsAre("mig.b50"));
}

TEST_F(SafeWriting, LeftOversInTheFolderOfCopiesAreSweptAtTheFirstCopy)
{
    setOld(disk.put("recovery/.tarvex-save-0123456789abcdef", "half"));
    disk.put("work/mig.b50", "old");
    calls.lockedFolder = folder + "/";
    EXPECT_EQ(save(file, "new"), 0);
    EXPECT_THAT(namesIn(disk / "recovery"), IsEmpty());
}

TEST_F(SafeWriting, SweepSparesYoungFilesAndForeignNames)
{
    const std::vector<std::string> kept = {".tarvex-save-0123456789abcdeF",
                                           ".tarvex-save-0123456789abcde",
                                           ".tarvex-save-12-1x",
                                           ".tarvex-save-x-1",
                                           ".tarvex-save-12",
                                           ".tarvex-save-",
                                           "x.tarvex-save-12-1",
                                           ".tarvex-save--5-1"};
    for (const std::string& name : kept) setOld(disk.put("work/" + name, "kept"));
    const timeval future[] = {{4'000'000'000, 0}, {4'000'000'000, 0}};
    const std::string young = disk.put("work/.tarvex-save-0000000000000001", "young");
    ::utimes(young.c_str(), future);
    fs::create_directory(folder + "/.tarvex-save-0000000000000002");
    setOld(folder + "/.tarvex-save-0000000000000002");
    fs::create_symlink("/dev/null", folder + "/.tarvex-save-0000000000000003");

    writer.sweep(folder);
    EXPECT_EQ(namesIn(folder).size(), kept.size() + 3);
    setOld(young);
    writer.sweep(folder);
    EXPECT_EQ(namesIn(folder).size(), kept.size() + 2) << "old enough now";
}

TEST_F(SafeWriting, SweepsTheCurrentFolderWhenAFileThereIsSaved)
{
    const fs::path before = fs::current_path();
    fs::current_path(folder);
    setOld(disk.put("work/.tarvex-save-0123456789abcdef", "left"));
    const int error = save("mig.b50", "new");
    fs::current_path(before);
    EXPECT_EQ(error, 0);
    EXPECT_THAT(namesIn(folder), ElementsAre("mig.b50"));
}

TEST_F(SafeWriting, SweepSparesAFileThatIsBeingWritten)
{
    disk.put("work/mig.b50", "old");
    save(file, "old");
    std::size_t swept = 0;
    calls.beforeEach = [&] {
        if (calls.made.back() != "fsync") return;
        calls.beforeEach = nullptr;
        for (const std::string& name : namesIn(folder)) setOld(folder + "/" + name);
        SystemCalls otherCalls;
        SafeWriter(disk / "recovery", otherCalls).sweep(folder);
        ++swept;
    };
    EXPECT_EQ(save(file, "new"), 0);
    EXPECT_EQ(swept, 1U);
    EXPECT_EQ(bytesOf(file), "new");
}

TEST_F(SafeWriting, WithoutLocksOfTheFileSystemASweepLeavesAll)
{
    setOld(disk.put("work/.tarvex-save-0123456789abcdef", "in use or not"));
    calls.fault = {2, ENOLCK};
    writer.sweep(folder);
    EXPECT_EQ(calls.made, (std::vector<std::string>{"lstat", "open", "flock"}));
    EXPECT_THAT(namesIn(folder), ElementsAre(".tarvex-save-0123456789abcdef"));
}

TEST_F(SafeWriting, SweepOfAMissingFolderDoesNothing) { EXPECT_NO_THROW(writer.sweep(disk / "none")); }

TEST_F(SafeWriting, LeftCopiesAreThoseThatNobodyHasLocked)
{
    const std::string left = disk.put("recovery/mig.b50.tarvex-copy-0123456789abcdef", "old");
    const std::string earlier = disk.put("recovery/mig.b50.tarvex-copy-" + std::to_string(::getppid()) + "-1", "old");
    const std::string used = disk.put("recovery/mig.b50.tarvex-copy-0123456789abcde0", "in use");
    disk.put("recovery/mig.b50", "foreign");
    OpenFile user(calls, used, O_WRONLY);
    ASSERT_EQ(::flock(user.descriptor(), LOCK_EX), 0);
    EXPECT_THAT(writer.leftCopies(), testing::UnorderedElementsAre(left, earlier));
    user.close();
    EXPECT_EQ(writer.leftCopies().size(), 3U);
}

TEST_F(SafeWriting, CopyOfARunningSaveIsNotReported)
{
    disk.put("work/mig.b50", "old");
    calls.lockedFolder = folder + "/";
    std::vector<std::string> during = {"never looked"};
    calls.beforeEach = [&] {
        if (calls.made.back() != "ftruncate") return;
        EXPECT_EQ(namesIn(disk / "recovery").size(), 1U);
        SystemCalls otherCalls;
        during = SafeWriter(disk / "recovery", otherCalls).leftCopies();
    };
    EXPECT_EQ(save(file, "new"), 0);
    EXPECT_THAT(during, IsEmpty());
}

} // namespace
} // namespace tarvex
