#include "platform/posix/dosbox_paths.h"

#include "platform/errors.h"
#include "process_world.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>

namespace tarvex {
namespace {

struct World : ProcessWorld {
    DosboxFolder folder;
    DosboxPaths paths{drives, folder};

    /// Where a drive letter leads, behind the links.
    std::string placeOf(char letter)
    {
        for (const DosboxPaths::Mount& mount : paths.mounts()) {
            if (mount.letter == letter) return std::filesystem::canonical(mount.place).string();
        }
        return "(not mounted)";
    }
};

TEST(IsPlainDosName, OfNamesThatDosAndDosBoxKnowAsTheyAre)
{
    for (const char* name : {"A", "MIG.B50", "mig29.b50", "12345678.123", "a_b-$#@!.()", "noext"})
        EXPECT_TRUE(isPlainDosName(name)) << name;
    for (const char* name :
         {"",    ".",   "..",       ".b50", "123456789", "a.1234",  "a.b.c",    "a b.b50", "a;b", "a%",  "a&b", "a'b",
          "a~1", "a\n", "\xC3\xA4", "a.",   "con",       "Aux.b50", "lpt1.m50", "a+b",     "a,b", "a=b", "a[b"})
        EXPECT_FALSE(isPlainDosName(name)) << name;
}

TEST(DosboxPaths, APlainPathIsTheSameInside)
{
    World w;
    w.disk.put("drive_c/TM/b50progs/Mig.B50", "");
    EXPECT_EQ(w.paths.directory("c:\\tm"), "C:\\TM");
    EXPECT_EQ(w.paths.directory("C:\\"), "C:\\");
    EXPECT_EQ(w.paths.file("c:\\tm\\b50progs\\mig.b50"), "C:\\TM\\B50PROGS\\MIG.B50");
    EXPECT_EQ(w.placeOf('c'), w.driveC);
    EXPECT_EQ(w.placeOf('z'), "(not mounted)");
}

TEST(DosboxPaths, AFolderWithAnotherNameGetsALetter)
{
    World w;
    w.disk.put("drive_c/My games;$(x)/mig.b50", "");
    const std::string file = w.paths.file("c:\\my games;$(x)\\mig.b50");
    EXPECT_EQ(file.substr(1), ":\\MIG.B50");
    const char letter = static_cast<char>(file[0] | 0x20);
    EXPECT_EQ(w.placeOf(letter), w.driveC + "/My games;$(x)");
    EXPECT_EQ(w.paths.directory("c:\\my games;$(x)"), file.substr(0, 3)) << "once";
}

TEST(DosboxPaths, APathThatIsTooLongForDosGetsALetter)
{
    World w;
    w.disk.makeDirectory("drive_c/11111111/22222222/33333333/44444444/55555555/66666666/77777777");
    EXPECT_EQ(w.paths.directory("c:\\11111111\\22222222\\33333333\\44444444\\55555555\\66666666"),
              "C:\\11111111\\22222222\\33333333\\44444444\\55555555\\66666666");
    EXPECT_EQ(w.paths.directory("c:\\11111111\\22222222\\33333333\\44444444\\55555555\\66666666\\77777777").size(), 3U);
}

TEST(DosboxPaths, OfTwoNamesThatDifferByCaseEachIsFound)
{
    World w;
    w.disk.put("drive_c/mig.b50", "lower");
    w.disk.put("drive_c/MIG.b50", "upper");
    const std::string inside = w.paths.file("c:\\mig.b50");
    EXPECT_EQ(inside.substr(1), ":\\FILE1.B50");
    EXPECT_EQ(bytesOf(w.folder.path() + "/run/FILE1.B50"), "lower");
}

TEST(DosboxPaths, WhatLiesOutsideTheDrivesGetsLetters)
{
    World w;
    const std::string other = w.disk.put("elsewhere/mig.b50", "");
    const std::string inside = w.paths.file(w.drives.toDos(other));
    EXPECT_EQ(inside.substr(1), ":\\MIG.B50");
    EXPECT_NE(inside[0], 'Z') << "DOSBox keeps its own commands there";
}

TEST(DosboxPaths, ThereIsAnEndOfLetters)
{
    World w;
    for (int i = 0; i < 30; ++i) w.disk.makeDirectory("drive_c/a folder " + std::to_string(i));
    EXPECT_THROW(
        {
            for (int i = 0; i < 30; ++i) w.paths.directory("c:\\a folder " + std::to_string(i));
        },
        RuntimeError);
}

TEST(DosboxTail, IsLeftAsItStandsWherePathsArePlain)
{
    World w;
    w.disk.put("drive_c/tm/mig.b50", "");
    const std::string tail = "  c:\\tm\\mig.b50 Q  /X;$(a) %b% \"c d\" <e>|& ";
    EXPECT_EQ(w.paths.tail(tail), tail);
    EXPECT_EQ(w.paths.tail(""), "");
    EXPECT_EQ(w.paths.tail(" c:\\gone;x\\a.b50 c:\\new;.b50"), " c:\\gone;x\\a.b50 c:\\new;.b50");
    EXPECT_EQ(w.paths.tail(" \xC3\xA4"), " \xE4") << "a byte for a character";
}

TEST(DosboxTail, NamesFilesByWhatTheyAreCalledInside)
{
    World w;
    w.disk.put("drive_c/tm/a;b.b50", "odd");
    w.disk.put("drive_c/a dir/mig.b50", "");
    EXPECT_EQ(w.paths.tail(" c:\\tm\\a;b.b50 Q").substr(2), ":\\FILE1.B50 Q");
    EXPECT_EQ(w.paths.tail(" \"c:\\tm\\a;b.b50\" Q").substr(2), ":\\FILE1.B50 Q");
    EXPECT_EQ(bytesOf(w.folder.path() + "/run/FILE1.B50"), "odd");
    EXPECT_EQ(w.paths.tail(" \"c:\\a dir\\mig.b50\"").substr(2), ":\\MIG.B50");
    EXPECT_EQ(w.paths.tail(" \"c:\\a dir\\new.b50\"").substr(2), ":\\NEW.B50") << "a file to be made";
}

TEST(DosboxTail, OfAPathWithBlanksTheLongestThatExistsCounts)
{
    World w;
    w.disk.put("drive_c/a dir/mig 29.b50", "");
    w.disk.put("drive_c/a", "");
    EXPECT_EQ(w.paths.tail(" c:\\a dir\\mig 29.b50 Q").substr(2), ":\\FILE1.B50 Q");
    EXPECT_EQ(w.paths.tail(" c:\\a dir Q").substr(2), ":\\ Q");
    EXPECT_EQ(w.paths.tail(" c:\\a other"), " c:\\a other");
}

TEST(DosboxFolder, IsGoneAtTheEndAndSweptWhenNobodyHoldsItAnyMore)
{
    const TemporaryDirectory runtime; // where no other test sweeps
    ::setenv("XDG_RUNTIME_DIR", runtime.path().c_str(), 1);
    std::string path;
    {
        DosboxFolder folder;
        path = folder.path();
        const DosboxFolder other;
        EXPECT_TRUE(std::filesystem::exists(path)) << "another run doesn't sweep what is held";
    }
    EXPECT_FALSE(std::filesystem::exists(path));
    {
        DosboxFolder folder;
        path = folder.path();
        folder.link("c", "/etc");
        folder.leave();
    }
    EXPECT_TRUE(std::filesystem::exists(path));
    const DosboxFolder next;
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_TRUE(std::filesystem::exists("/etc/passwd")) << "links aren't followed";
    ::unsetenv("XDG_RUNTIME_DIR");
}

} // namespace
} // namespace tarvex
