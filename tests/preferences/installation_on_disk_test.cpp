// Old installations on a real disk, whose links and sizes a disk in memory can't have.

#include "preferences/installation.h"

#include "platform/posix/drive_map.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/safe_writer.h"
#include "platform/posix/system_calls.h"
#include "support/temporary_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace tarvex {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

struct InstallationOnDisk : testing::Test {
    TemporaryDirectory disk;
    DriveMap drives{{.winePrefix = {},
                     .home = {},
                     .programDirectory = disk.makeDirectory("program"),
                     .workingDirectory = disk.path()}};
    SystemCalls calls;
    SafeWriter writer{disk / "program/Recover", calls};
    PosixFiles files{drives, writer};

    std::string dos(const std::string& name) const { return drives.toDos(disk / name); }
    void link(const std::string& target, const std::string& name) const { fs::create_symlink(target, disk / name); }
};

TEST_F(InstallationOnDisk, IsFoundInAWinePrefixWhoseDrivesLeadOutOfIt)
{
    disk.put("prefix/drive_c/Program Files/Tarvex/TARVEX.INI", "[Miscellaneous]\r\nUndoMax=12\r\n");
    disk.put("elsewhere/a/Tarvex.ini", "[Miscellaneous]\r\nUndoMax=99\r\n");
    disk.makeDirectory("prefix/dosdevices");
    link("../drive_c", "prefix/dosdevices/c:");
    link("/", "prefix/dosdevices/z:");
    link(disk / "elsewhere", "prefix/drive_c/Documents");
    link("..", "prefix/drive_c/loop");
    const std::string found = findInstallation(files, dos("prefix"));
    EXPECT_EQ(drives.toNative(found), disk / "prefix/drive_c/Program Files/Tarvex");
    EXPECT_THAT(examine(files, found)[ImportPart::Settings].files, ElementsAre("Tarvex.ini"));
}

TEST_F(InstallationOnDisk, LinksOutOfItAreLeftOutAndThoseInsideAreTaken)
{
    disk.put("secret/key.txt", "secret");
    disk.put("old/Templates/real.txt", "real");
    link("real.txt", "old/Templates/inside.txt");
    link("../../secret/key.txt", "old/Templates/outside.txt");
    link("nowhere", "old/Templates/broken.txt");
    link(disk / "secret", "old/Backup");
    const Installation found = examine(files, dos("old"));
    EXPECT_THAT(found[ImportPart::Templates].files, ElementsAre("inside.txt", "real.txt"));
    EXPECT_THAT(found[ImportPart::Templates].leftOut, HasSubstr("outside.txt: a link that leads out"));
    EXPECT_THAT(found[ImportPart::Backups].whyNot, HasSubstr("link that leads out"));
    EXPECT_TRUE(found[ImportPart::Backups].files.empty());
}

TEST_F(InstallationOnDisk, OfAGigabyteIsMeasuredWithoutReadingIt)
{
    for (int i = 0; i < 64; ++i) {
        const std::string file = disk.put("old/Backup/" + std::to_string(i) + ".b50", "");
        fs::resize_file(file, importBound::fileBytes); // sparse
    }
    fs::resize_file(disk.put("old/Tarvex.ini", ""), importBound::fileBytes + 1);
    const Installation found = examine(files, dos("old"));
    EXPECT_THAT(found[ImportPart::Backups].whyNot, HasSubstr("256 MB"));
    EXPECT_THAT(found[ImportPart::Settings].leftOut, HasSubstr("Tarvex.ini: larger than 16 MB"));
}

TEST_F(InstallationOnDisk, FoldersAndPipesUnderTheNamesOfFilesHoldNothingUp)
{
    disk.makeDirectory("old/Tarvex.ini");
    disk.makeDirectory("old/Templates/folder.txt");
    ASSERT_EQ(::mkfifo((disk / "old/Templates/pipe.txt").c_str(), 0600), 0);
    const Installation found = examine(files, dos("old"));
    EXPECT_TRUE(found[ImportPart::Settings].files.empty());
    const ImportReport report = import(files, found, {true, true, true, true}, drives.toDos(disk / "program"));
    EXPECT_EQ(report.copied, 0U);
    EXPECT_THAT(report.problems, HasSubstr("pipe.txt"));
    EXPECT_EQ(report.problems.find("folder.txt"), std::string::npos);
}

TEST_F(InstallationOnDisk, IsCopiedWithTheCopyOfTodayReadableByTheOwnerOnly)
{
    disk.put("program/Tarvex.ini", "[Miscellaneous]\r\nUndoMax=10\r\n");
    disk.put("old/Tarvex.ini", "[Miscellaneous]\r\nUndoMax=12\r\n");
    disk.put("old/Backup/a.b50", "BTN S1 a");
    const ImportReport report =
        import(files, examine(files, dos("old")), {true, true, true, true}, drives.toDos(disk / "program"));
    EXPECT_EQ(report.problems, "");
    EXPECT_EQ(report.copied, 2U);
    EXPECT_EQ(bytesOf(disk / "program/Tarvex.ini"), "[Miscellaneous]\r\nUndoMax=12\r\n");
    EXPECT_EQ(bytesOf(disk / "program/Backup/a.b50"), "BTN S1 a");
    const std::string kept = disk / "program/Settings before import/Tarvex.ini";
    EXPECT_EQ(bytesOf(kept), "[Miscellaneous]\r\nUndoMax=10\r\n");
    EXPECT_EQ(fs::status(kept).permissions() & fs::perms(0077), fs::perms::none);
}

} // namespace
} // namespace tarvex
