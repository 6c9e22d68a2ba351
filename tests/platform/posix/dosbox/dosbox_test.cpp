// DOS programs in the real DOSBox, without a window.

#include "dos_show.h"
#include "platform/posix/processes/process_world.h"
#include "platform/posix/processes/runners.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct DosboxTest : testing::Test, ProcessWorld {
    DosboxTest()
    {
        ::setenv("SDL_VIDEODRIVER", "dummy", 1);
        ::setenv("SDL_AUDIODRIVER", "dummy", 1);
        ::setenv("HOME", disk.path().c_str(), 1); // where DOSBox keeps its settings
    }
    void SetUp() override
    {
        if (findCommand(std::getenv("PATH"), "dosbox").empty()) GTEST_SKIP() << "dosbox isn't installed";
    }
    void putShow(const std::string& name) const { disk.put("drive_c/" + name, dosShow()); }
};

TEST_F(DosboxTest, AProgramSeesItsFolderItsCommandLineAndTheFile)
{
    putShow("TM/B50Load.com");
    disk.put("drive_c/TM/b50progs/mig.b50", "BTN S1 a");
    EXPECT_EQ(run("c:\\tm\\b50load.com c:\\tm\\b50progs\\mig.b50 Q", "c:\\tm"), 0);
    EXPECT_EQ(contents("TM/SEEN.TXT"), " c:\\tm\\b50progs\\mig.b50 Q\r\nC:\\TM\r\nBTN S1 a");
}

TEST_F(DosboxTest, ShellMetacharactersReachItAsPlainText)
{
    putShow("tm/load.com");
    const std::string tail = " ;x $(y) `z` \"q' %PATH% & | > bad < c -rf ^ ~ \n exit\nmount";
    EXPECT_EQ(run("c:\\tm\\load.com" + tail, "c:\\tm"), 0);
    EXPECT_EQ(contents("tm/SEEN.TXT"), tail + "\r\nC:\\TM\r\n");
    EXPECT_EQ(contents("tm/BAD"), "(missing)");
}

TEST_F(DosboxTest, PathsThatDosCannotHaveReachItByAnotherName)
{
    const std::string odd = "a; $(b)\n%PATH%&'";
    putShow(odd + "/-load;er.com");
    disk.put("drive_c/" + odd + "/x;y z.b50", "BTN S1 a");
    const std::string folder = drives.toDos(driveC + "/" + odd);
    EXPECT_EQ(run("\"" + folder + "\\-load;er.com\" " + folder + "\\x;y z.b50 Q", folder), 0);
    const std::string seen = contents(odd + "/SEEN.TXT");
    EXPECT_EQ(seen.substr(2), ":\\FILE2.B50 Q\r\n" + seen.substr(17, 1) + ":\\\r\nBTN S1 a") << "the folder itself";
}

TEST_F(DosboxTest, AnOldProgramFindsTheWordsOfItsCommandLineInItsControlBlocks)
{
    using namespace std::string_literals;
    disk.put("drive_c/load.com", dosShowControlBlocks());
    EXPECT_EQ(run("c:\\load.com mig.b50 C:*.m50 third"), 0);
    EXPECT_EQ(contents("SEEN.TXT"), "\0MIG     B50\3????????M50"s);
    EXPECT_EQ(run("c:\\load.com c:\\tm\\mig.b50 q"), 0);
    EXPECT_EQ(contents("SEEN.TXT").substr(12), "\0Q          "s) << "a path is one word";
    EXPECT_EQ(run("c:\\load.com"), 0);
    EXPECT_EQ(contents("SEEN.TXT"), "\0           \0           "s);
}

TEST_F(DosboxTest, OnlyTheLastLetterOfTheAlphabetIsOutOfReach)
{
    putShow("load.com");
    const std::string other = disk.put("elsewhere/mig.b50", "BTN S2 b");
    EXPECT_EQ(run("c:\\load.com " + drives.toDos(other)), 0);
    EXPECT_EQ(contents("SEEN.TXT").substr(2), ":\\MIG.B50\r\nC:\\\r\nBTN S2 b");
}

TEST_F(DosboxTest, ABatchFileRunsInItsFolder)
{
    disk.put("drive_c/tm/tm.bat", "@echo off\r\necho %1 %2> seen.txt\r\n");
    EXPECT_EQ(run("c:\\tm\\tm.bat one two", "c:\\tm"), 0);
    EXPECT_EQ(contents("tm/SEEN.TXT"), "one two\r\n");
}

TEST_F(DosboxTest, ABatchFileIsGivenNothingThatItsInterpreterWouldRun)
{
    disk.put("drive_c/tm/tm.bat", "@echo %1> seen.txt\r\n");
    for (const std::string tail : {" a>b", " a|b", " %PATH%", " a\nb", " a&b", " \"a\""})
        EXPECT_EQ(run("c:\\tm\\tm.bat" + tail, "c:\\tm"), 5) << tail;
    EXPECT_EQ(contents("tm/SEEN.TXT"), "(missing)");
}

TEST_F(DosboxTest, ACommandLineThatIsTooLongForDosIsRefusedAndNotCut)
{
    putShow("load.com");
    EXPECT_EQ(run("c:\\load.com " + std::string(126, 'x')), 5);
    EXPECT_EQ(contents("SEEN.TXT"), "(missing)");
    EXPECT_EQ(run("c:\\load.com " + std::string(125, 'x')), 0);
    EXPECT_EQ(contents("SEEN.TXT"), " " + std::string(125, 'x') + "\r\nC:\\\r\n");
}

TEST_F(DosboxTest, WhatTheUsersSettingsRunAtTheStartIsLeftOut)
{
    putShow("load.com");
    disk.put(".dosbox/dosbox-0.74-3.conf", "[autoexec]\nmount c /\nexit\n");
    disk.put("drive_c/dosbox.conf", "[autoexec]\nexit\n");
    EXPECT_EQ(run("c:\\load.com"), 0);
    EXPECT_EQ(contents("SEEN.TXT"), "\r\nC:\\\r\n");
}

} // namespace
} // namespace tarvex
