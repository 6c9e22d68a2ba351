#include "platform/posix/program_directory.h"

#include "platform/posix/command_line.h"
#include "support/temporary_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvex {

namespace {

struct ProgramDirectory : testing::Test {
    TemporaryDirectory disk;
    ProgramPlaces places{disk.put("bin/tarvex", ""), "", "", disk.makeDirectory("home")};
    const std::string inHome = disk / "home/.local/share/tarvex";

    /// An executable in a place that takes no file. Root may write anywhere, so for him there is no such place at all.
    void moveToUnwritablePlace()
    {
        places.executable = disk / "fixed/tarvex";
        if (::geteuid() == 0) return;
        disk.put("fixed/tarvex", "");
        ::chmod((disk / "fixed").c_str(), 0555);
    }
    void install()
    {
        disk.put("share/tarvex/Tips.txt", "tips");
        disk.put("share/tarvex/Templates/a.rtf", "template");
        places.installedFiles = disk / "share/tarvex";
    }
};

} // namespace

TEST_F(ProgramDirectory, IsTheExecutablesWhereThatIsWritable)
{
    EXPECT_EQ(findProgramDirectory(places), disk / "bin");
    EXPECT_FALSE(std::filesystem::exists(inHome));
}

TEST_F(ProgramDirectory, OfAnUnwritablePlaceIsInTheDataHome)
{
    moveToUnwritablePlace();
    places.dataHome = disk / "data/deep";
    EXPECT_EQ(findProgramDirectory(places), disk / "data/deep/tarvex");
    EXPECT_TRUE(std::filesystem::is_directory(disk / "data/deep/tarvex"));
}

TEST_F(ProgramDirectory, DataHomeIsBelowTheHomeUnlessGivenAsAnAbsolutePath)
{
    moveToUnwritablePlace();
    EXPECT_EQ(findProgramDirectory(places), inHome);
    places.dataHome = "relative";
    EXPECT_EQ(findProgramDirectory(places), inHome);
}

TEST_F(ProgramDirectory, APackagesFilesAreInTheFolderShareBesideThatOfItsPrograms)
{
    EXPECT_EQ(installedFilesOf(places.executable), "");
    disk.put("share/tarvex", "a file");
    EXPECT_EQ(installedFilesOf(places.executable), "");
    std::filesystem::remove(disk / "share/tarvex");
    disk.makeDirectory("share/tarvex");
    EXPECT_EQ(installedFilesOf(places.executable), disk / "share/tarvex");
    EXPECT_EQ(readProgramPlaces().executable, std::filesystem::canonical("/proc/self/exe"));
}

TEST_F(ProgramDirectory, OfAnInstalledPackageIsFilledOnceWithItsFiles)
{
    install();
    ::chmod((disk / "share/tarvex/Tips.txt").c_str(), 0444);
    EXPECT_EQ(findProgramDirectory(places), inHome);
    EXPECT_EQ(bytesOf(inHome + "/Tips.txt"), "tips");
    EXPECT_EQ(bytesOf(inHome + "/Templates/a.rtf"), "template");
    struct stat status = {};
    ::stat((inHome + "/Tips.txt").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0600U, 0600U) << "the user may change his copy";
    ::stat(inHome.c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
    EXPECT_THAT(namesIn(disk / "home/.local/share"), testing::ElementsAre("tarvex"));

    std::filesystem::remove(inHome + "/Tips.txt");
    EXPECT_EQ(findProgramDirectory(places), inHome);
    EXPECT_FALSE(std::filesystem::exists(inHome + "/Tips.txt")) << "what the user removed stays away";
}

TEST_F(ProgramDirectory, FilledFromFoldersThatNobodyMayWriteIsTheUsersToWrite)
{
    install();
    ::chmod((disk / "share/tarvex/Templates").c_str(), 0555);
    ::chmod((disk / "share/tarvex").c_str(), 0555);
    EXPECT_EQ(findProgramDirectory(places), inHome);
    for (const char* folder : {"", "/Templates"}) {
        struct stat status = {};
        ASSERT_EQ(::stat((inHome + folder).c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0700U, 0700U) << folder;
    }
    ::chmod((disk / "share/tarvex").c_str(), 0755); // to be removed with the rest
    ::chmod((disk / "share/tarvex/Templates").c_str(), 0755);
}

TEST_F(ProgramDirectory, LinksAmongTheInstalledFilesAreFilledWithWhatTheyLeadTo)
{
    install();
    disk.put("elsewhere/b.rtf", "linked");
    std::filesystem::create_symlink(disk / "elsewhere/b.rtf", disk / "share/tarvex/b.rtf");
    std::filesystem::create_directory_symlink(disk / "elsewhere", disk / "share/tarvex/More");
    EXPECT_EQ(findProgramDirectory(places), inHome);
    EXPECT_FALSE(std::filesystem::is_symlink(inHome + "/b.rtf"));
    EXPECT_EQ(bytesOf(inHome + "/b.rtf"), "linked");
    EXPECT_FALSE(std::filesystem::is_symlink(inHome + "/More"));
    EXPECT_EQ(bytesOf(inHome + "/More/b.rtf"), "linked");
}

TEST_F(ProgramDirectory, FilledByAStartThatWasCutShortIsFilledAnew)
{
    install();
    const std::string left = "home/.local/share/.tarvex-fill-" + std::to_string(::getpid());
    disk.put(left + "/half.txt", "half");
    EXPECT_EQ(findProgramDirectory(places), inHome);
    EXPECT_EQ(bytesOf(inHome + "/Tips.txt"), "tips");
    EXPECT_FALSE(std::filesystem::exists(inHome + "/half.txt"));
    EXPECT_FALSE(std::filesystem::exists(disk / left));
}

TEST_F(ProgramDirectory, WithoutItsInstalledFilesIsEmpty)
{
    places.installedFiles = disk / "share/gone";
    EXPECT_EQ(findProgramDirectory(places), inHome);
    EXPECT_TRUE(std::filesystem::is_empty(inHome));
}

TEST_F(ProgramDirectory, ThatCannotBeFilledLeavesNothingBehind)
{
    install();
    std::filesystem::create_symlink(disk / "nowhere", disk / "share/tarvex/broken");
    EXPECT_EQ(findProgramDirectory(places), disk / "bin");
    EXPECT_TRUE(std::filesystem::is_empty(disk / "home/.local/share"));
}

TEST_F(ProgramDirectory, WithoutAnyWritablePlaceIsTheExecutables)
{
    moveToUnwritablePlace();
    places.home = "";
    EXPECT_EQ(findProgramDirectory(places), disk / "fixed");
    places.home = "/proc";
    EXPECT_EQ(findProgramDirectory(places), disk / "fixed");
}

TEST(ReadProgramPlaces, FindsTheRunningProgram)
{
    const ProgramPlaces places = readProgramPlaces();
    EXPECT_EQ(std::filesystem::path(places.executable).filename(), "posix_test");
    EXPECT_TRUE(std::filesystem::is_regular_file(places.executable));
    EXPECT_EQ(places.home, fromEnvironment("HOME"));
    EXPECT_EQ(places.dataHome, fromEnvironment("XDG_DATA_HOME"));
}

} // namespace tarvex
