#include "shell/current_directory.h"

#include "support/memory_files.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct World {
    World()
    {
        files.addDirectory("c:\\tm\\b50progs");
        files.addDirectory("d:\\games");
    }
    MemoryFiles files;
    CurrentDirectory current{files, "c:\\tm"};
};

/// Number of the error that the work ends with, 0 without one.
template <typename Work> int errorOf(Work work)
{
    try {
        work();
    } catch (const RuntimeError& error) {
        return static_cast<int>(error.code());
    }
    return 0;
}

TEST(ChDir, ChangesToADirectoryWithOrWithoutItsClosingBackslash)
{
    World w;
    w.current.ChDir("c:\\tm\\b50progs\\");
    EXPECT_EQ(w.current.path(), "c:\\tm\\b50progs");
    w.current.ChDir("c:\\");
    EXPECT_EQ(w.current.path(), "c:\\");
    w.current.ChDir("tm");
    EXPECT_EQ(w.current.path(), "c:\\tm");
}

TEST(ChDir, OfAnotherDriveLeavesTheCurrentDriveAlone)
{
    World w;
    w.current.ChDir("d:\\games");
    EXPECT_EQ(w.current.path(), "c:\\tm");
    w.current.ChDrive("D");
    EXPECT_EQ(w.current.path(), "d:\\games");
    EXPECT_EQ(w.current.fullPath("c:b50progs"), "c:\\tm\\b50progs") << "each drive has its own";
}

TEST(ChDir, IntoADirectoryThatIsGoneIsAnErrorThatSaysNotFound)
{
    World w;
    EXPECT_EQ(errorOf([&] { w.current.ChDir("c:\\gone"); }), 76);
    EXPECT_EQ(errorOf([&] { w.current.ChDir(""); }), 76);
    EXPECT_EQ(w.current.path(), "c:\\tm");
}

TEST(ChDrive, OfNoLetterAndOfADriveThatIsNotThereAreErrors)
{
    World w;
    EXPECT_EQ(errorOf([&] { w.current.ChDrive(""); }), 5);
    EXPECT_EQ(errorOf([&] { w.current.ChDrive("1"); }), 5);
    EXPECT_EQ(errorOf([&] { w.current.ChDrive("q"); }), 68);
    EXPECT_EQ(w.current.path(), "c:\\tm");
}

TEST(FullPath, GoesFromTheCurrentDirectory)
{
    World w;
    EXPECT_EQ(w.current.fullPath("mig.b50"), "c:\\tm\\mig.b50");
    EXPECT_EQ(w.current.fullPath("\\mig.b50"), "c:\\mig.b50");
    EXPECT_EQ(w.current.fullPath("D:\\games\\x"), "d:\\games\\x");
    w.current.ChDir("c:\\");
    EXPECT_EQ(w.current.fullPath("mig.b50"), "c:\\mig.b50");
}

TEST(ChangeToFolderOf, StopsWhereItMustAndReportsEachStepThatFails)
{
    World w;
    ErrorRecord errors;
    changeToFolderOf(w.current, "d:\\games\\f22.exe", Steps(errors, "TAG"));
    EXPECT_EQ(w.current.path(), "d:\\games");
    changeToFolderOf(w.current, "d:\\gone\\f22.exe", Steps(errors, "TAG"));
    EXPECT_EQ(w.current.path(), "d:\\") << "drive and root are changed before the folder";
    EXPECT_EQ(errors.ErrorNumber, 76);
    changeToFolderOf(w.current, "", Steps(errors, "TAG"));
    EXPECT_EQ(w.current.path(), "d:\\");
}

} // namespace
} // namespace tarvex
