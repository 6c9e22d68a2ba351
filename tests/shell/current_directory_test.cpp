#include "shell/current_directory.h"

#include "support/memory_files.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

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

TEST(ChDrive, TakesTheFirstAndTheLastLetter)
{
    World w;
    for (const char* drive : {"a", "A:", "z", "Z:"}) {
        EXPECT_EQ(errorOf([&] { w.current.ChDrive(drive); }), static_cast<int>(ErrorCode::DeviceUnavailable)) << drive;
    }
    for (const char* none : {"`", "{", "@", "["}) {
        EXPECT_EQ(errorOf([&] { w.current.ChDrive(none); }), static_cast<int>(ErrorCode::InvalidCall)) << none;
    }
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

TEST(ChDrive, TakesEachLetterOfTheAlphabetInBothCasesAndNothingElse)
{
    World w;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const std::string root = std::string(1, letter) + ":\\";
        w.files.addDirectory(root + "x");
        w.current.ChDrive(std::string(1, letter));
        EXPECT_EQ(w.current.path(), letter == 'c' ? "c:\\tm" : root);
        w.current.ChDrive("c");
        w.current.ChDrive(std::string(1, static_cast<char>(letter - 'a' + 'A')));
        EXPECT_EQ(w.current.path(), letter == 'c' ? "c:\\tm" : root);
    }
    for (const char* sign : {"@", "[", "`", "{"}) EXPECT_EQ(errorOf([&] { w.current.ChDrive(sign); }), 5) << sign;
}

TEST(CurrentDirectory, BeginsWhereTheProgramWasStarted)
{
    World w;
    EXPECT_EQ(CurrentDirectory(w.files, "D:\\games\\").path(), "D:\\games");
    EXPECT_EQ(CurrentDirectory(w.files, "D:\\games\\").fullPath("d:f22"), "D:\\games\\f22");
    EXPECT_EQ(CurrentDirectory(w.files, "c:\\").path(), "c:\\");
    EXPECT_EQ(CurrentDirectory(w.files, "").path(), "c:\\") << "no drive: c:";
    EXPECT_EQ(CurrentDirectory(w.files, "/home").path(), "c:\\");
}

TEST(FullPath, OfADriveAloneIsItsCurrentDirectoryAndASlashIsItsRoot)
{
    World w;
    EXPECT_EQ(w.current.fullPath(""), "c:\\tm");
    EXPECT_EQ(w.current.fullPath("c:"), "c:\\tm");
    EXPECT_EQ(w.current.fullPath("d:"), "d:\\") << "nobody has been there";
    EXPECT_EQ(w.current.fullPath("d:x"), "d:\\x");
    EXPECT_EQ(w.current.fullPath("/mig.b50"), "c:\\mig.b50");
    EXPECT_EQ(w.current.fullPath("d:/mig.b50"), "d:\\mig.b50");
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

TEST(ChangeToRootOf, TakesTheDriveAndItsRoot)
{
    World w;
    ErrorRecord errors;
    w.current.ChDir("d:\\games");
    changeToRootOf(w.current, "d:\\games\\f22.exe", Steps(errors, "TAG"));
    EXPECT_EQ(w.current.path(), "d:\\");
    changeToRootOf(w.current, "q:\\f22.exe", Steps(errors, "TAG"));
    EXPECT_EQ(w.current.path(), "d:\\");
    EXPECT_EQ(errors.ErrorProcedure, "TAG");
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

TEST(CurrentDirectory, SaysInWordsWhyItStays)
{
    World w;
    const auto reasonOf = [](const std::function<void()>& work) -> std::string {
        try {
            work();
        } catch (const RuntimeError& error) {
            return error.what();
        }
        return "";
    };
    EXPECT_EQ(reasonOf([&] { w.current.ChDrive("1"); }), "Invalid procedure call or argument");
    EXPECT_EQ(reasonOf([&] { w.current.ChDrive("q"); }), "Device unavailable");
    EXPECT_EQ(reasonOf([&] { w.current.ChDir("c:\\gone"); }), "Path not found");
}

TEST(ChDir, OfARootWithTwoBackslashesIsTheRoot)
{
    World w;
    w.current.ChDir("c:\\\\");
    EXPECT_EQ(w.current.path(), "c:\\");
}

} // namespace
} // namespace tarvex
