#include "platform/posix/dosbox/dosbox_paths.h"

#include "platform/errors.h"
#include "platform/posix/processes/process_world.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <thread>
#include <vector>

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
    /// The text that a program inside reads at a path, when a file of that text is in the root of a drive.
    std::string bytes(const std::string& inside)
    {
        return bytesOf(placeOf(static_cast<char>(inside.at(0) | 0x20)) + "/" + inside.substr(3));
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
    EXPECT_EQ(w.bytes(inside), "lower");
}

TEST(DosboxPaths, AFileWithAnotherNameHasItsNeighboursBesideIt)
{
    World w;
    w.disk.put("drive_c/tm/my f16.b50", "joystick");
    w.disk.put("drive_c/tm/my f16.m50", "macros");
    w.disk.put("drive_c/tm/my f16.backup", "backup");
    w.disk.put("drive_c/tm/other one.m50", "other");
    w.disk.put("drive_c/tm/keys.txt", "keys");
    w.disk.put("drive_c/tm/file1.m50", "not ours");
    const std::string inside = w.paths.file("c:\\tm\\my f16.b50");
    EXPECT_EQ(inside.substr(1), ":\\FILE2.B50") << "the first is taken";
    const std::string root = inside.substr(0, 3);
    EXPECT_EQ(w.bytes(inside), "joystick");
    EXPECT_EQ(w.bytes(root + "FILE2.M50"), "macros");
    EXPECT_EQ(w.bytes(root + "FILE2.BAC"), "backup");
    EXPECT_EQ(w.bytes(root + "FILE1.M50"), "not ours");
    EXPECT_EQ(w.bytes(root + "KEYS.TXT"), "keys");
    EXPECT_EQ(w.paths.file("c:\\tm\\my f16.m50"), root + "FILE2.M50") << "once";
    EXPECT_EQ(w.paths.file("c:\\tm\\other one.m50"), root + "FILE3.M50");
    EXPECT_EQ(w.paths.file("c:\\tm\\keys.txt"), "C:\\TM\\KEYS.TXT");
}

TEST(DosboxPaths, NeighboursThatLookTheSameToDosAreEachFound)
{
    World w;
    w.disk.put("drive_c/my f16.backup", "long");
    w.disk.put("drive_c/my f16.bac", "short");
    EXPECT_EQ(w.bytes(w.paths.file("c:\\my f16.backup")), "long");
    EXPECT_EQ(w.bytes(w.paths.file("c:\\my f16.bac")), "short");
}

TEST(DosboxPaths, OnlyDrivesWhoseFoldersAreThereAreMounted)
{
    ProcessWorld w;
    w.drives.choose('e', w.disk.makeDirectory("here"));
    w.drives.choose('f', w.disk / "gone");
    w.drives.choose('g', w.disk.put("a file", ""));
    const DosboxFolder folder;
    std::string letters;
    const DosboxPaths paths(w.drives, folder);
    for (const DosboxPaths::Mount& mount : paths.mounts()) letters += mount.letter;
    EXPECT_EQ(letters, "cey") << "y: is of our own, and z: stands for all of the disk";
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

TEST(DosboxPaths, LettersAreGivenFromTheEndOfTheAlphabetAndNoneIsMissing)
{
    World w;
    EXPECT_EQ(w.paths.ownLetter(), 'y') << "DOSBox has the last one";
    w.disk.makeDirectory("drive_c/a b");
    w.disk.makeDirectory("drive_c/c d");
    EXPECT_EQ(w.paths.directory("c:\\a b"), "X:\\");
    EXPECT_EQ(w.paths.directory("c:\\c d"), "W:\\");
    EXPECT_EQ(w.placeOf('w'), w.driveC + "/c d");
    for (char letter = 'V'; letter >= 'D'; --letter) {
        const std::string name = std::string("one ") + letter;
        w.disk.makeDirectory("drive_c/" + name);
        EXPECT_EQ(w.paths.directory("c:\\" + name), std::string(1, letter) + ":\\");
    }
    w.disk.makeDirectory("drive_c/too many");
    try {
        w.paths.directory("c:\\too many");
        ADD_FAILURE();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.code(), ErrorCode::DeviceUnavailable);
        EXPECT_STREQ(error.what(), "Device unavailable");
    }
}

TEST(DosboxPaths, ADirectoryOfSixtyCharactersIsThereAndALongerOneGetsALetter)
{
    World w;
    const std::string seven = "\\1234567\\1234567\\1234567\\1234567\\1234567\\1234567\\1234567"; // 56
    std::string native = "drive_c" + seven;
    std::replace(native.begin(), native.end(), '\\', '/');
    w.disk.makeDirectory(native + "/abc");
    w.disk.makeDirectory(native + "/abcd");
    EXPECT_EQ(w.paths.directory("c:" + seven + "\\abc"), "C:" + seven + "\\ABC");
    EXPECT_EQ(w.paths.directory("c:" + seven + "\\abcd").size(), 3U);
}

TEST(DosboxPaths, ADirectoryKeepsItsSeparatorInATail)
{
    World w;
    w.disk.makeDirectory("drive_c/my dir");
    w.disk.makeDirectory("drive_c/tm");
    EXPECT_EQ(w.paths.tail("\"c:\\my dir\\\""), "X:\\");
    EXPECT_EQ(w.paths.tail("\"c:\\my dir\""), "X:\\");
    EXPECT_EQ(w.paths.tail("c:\\tm\\ C:\\TM"), "c:\\tm\\ C:\\TM");
    EXPECT_EQ(w.paths.tail("\"c:\\tm"), "\"c:\\tm") << "a quotation mark that is never closed";
    EXPECT_EQ(w.paths.tail("c: \"c:\" \""), "c: \"c:\" \"");
    EXPECT_EQ(w.paths.tail("\tc:\\tm\t"), "\tc:\\tm\t");
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
    EXPECT_EQ(w.bytes(w.paths.file("c:\\tm\\a;b.b50")), "odd");
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

/// A place for the folders where no other test sweeps.
struct Runtime {
    Runtime() { ::setenv("XDG_RUNTIME_DIR", disk.path().c_str(), 1); }
    ~Runtime()
    {
        if (before) {
            ::setenv("XDG_RUNTIME_DIR", before->c_str(), 1);
        } else {
            ::unsetenv("XDG_RUNTIME_DIR");
        }
    }
    Runtime(const Runtime&) = delete;
    Runtime& operator=(const Runtime&) = delete;

    TemporaryDirectory disk;
    std::optional<std::string> before = std::getenv("XDG_RUNTIME_DIR") != nullptr
                                            ? std::optional<std::string>(std::getenv("XDG_RUNTIME_DIR"))
                                            : std::nullopt;
};

TEST(DosboxFolder, IsGoneAtTheEndAndSweptWhenNobodyHoldsItAnyMore)
{
    const Runtime runtime;
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
}

/// Whether a folder is made there when that is the session's own place; elsewhere it is made in /tmp, where that is
/// allowed.
bool isMadeIn(const std::string& place)
{
    ::setenv("XDG_RUNTIME_DIR", place.c_str(), 1);
    try {
        const DosboxFolder folder;
        const std::string parent = std::filesystem::path(folder.path()).parent_path().string();
        EXPECT_TRUE(parent == place || parent == "/tmp") << parent;
        return parent == place;
    } catch (const RuntimeError&) {
        return false;
    }
}

TEST(DosboxFolder, IsMadeInAPlaceThatDosBoxCannotMisread)
{
    const Runtime runtime;
    for (const char* name : {"az", "AZ", "09", "a_b", "a-b", "a/b"})
        EXPECT_TRUE(isMadeIn(runtime.disk.makeDirectory(name))) << name;
    for (const char* name : {"a b", "a.b", "a:b", "a@b", "a[b", "a`b", "a{b", "a;b", "a%b", "a\\b", "\xC3\xA4"})
        EXPECT_FALSE(isMadeIn(runtime.disk.makeDirectory(name))) << name;
    EXPECT_FALSE(isMadeIn(runtime.disk / "missing"));
    EXPECT_FALSE(isMadeIn("")) << "not set";
    EXPECT_FALSE(isMadeIn(".")) << "not a whole path";
}

TEST(DosboxFolder, IsMadeInAPlaceWhosePathLeavesRoomInACommand)
{
    const Runtime runtime;
    const std::size_t rest = 79 - (runtime.disk.path().size() + 1);
    ASSERT_LT(rest, 79U);
    EXPECT_TRUE(isMadeIn(runtime.disk.makeDirectory(std::string(rest, 'x'))));
    EXPECT_FALSE(isMadeIn(runtime.disk.makeDirectory(std::string(rest + 1, 'x'))));
}

TEST(DosboxFolder, WhatCannotBePutIntoItIsReported)
{
    const DosboxFolder folder;
    folder.put("file", "");
    EXPECT_THROW(folder.put("file/inside", ""), RuntimeError);
    EXPECT_THROW(folder.link("file", "/"), RuntimeError);
    EXPECT_THROW(folder.makeDirectory("file/inside"), RuntimeError);
}

TEST(DosboxFolder, SweepsOnlyWhatItMadeItself)
{
    namespace fs = std::filesystem;
    const Runtime runtime;
    const auto folder = [&](const std::string& name, fs::perms perms) {
        runtime.disk.put(name + "/lock", "");
        fs::permissions(runtime.disk / name, perms);
        return runtime.disk / name;
    };
    const std::string ours = folder("tarvex-dos-ours", fs::perms::owner_all);
    const std::string open = folder("tarvex-dos-open", fs::perms::owner_all | fs::perms::others_read);
    const std::string target = folder("target", fs::perms::owner_all);
    fs::create_directory_symlink(target, runtime.disk / "tarvex-dos-link");
    const std::string noLock = runtime.disk.makeDirectory("tarvex-dos-none");
    const DosboxFolder next;
    EXPECT_FALSE(fs::exists(ours));
    EXPECT_TRUE(fs::exists(open)) << "others may have put something there";
    EXPECT_TRUE(fs::exists(target + "/lock"));
    EXPECT_TRUE(fs::is_symlink(runtime.disk / "tarvex-dos-link"));
    EXPECT_TRUE(fs::exists(noLock)) << "it may be one that is just being made";
}

TEST(DosboxFolder, OfManyThatAreMadeAtOnceNoneIsSweptByAnother)
{
    const Runtime runtime;
    std::atomic<int> lost = 0;
    std::vector<std::thread> runs;
    for (int run = 0; run < 4; ++run) {
        runs.emplace_back([&lost] {
            for (int i = 0; i < 50; ++i) {
                const DosboxFolder folder;
                if (!std::filesystem::exists(folder.path() + "/lock")) ++lost;
            }
        });
    }
    for (std::thread& run : runs) run.join();
    EXPECT_EQ(lost, 0);
}

} // namespace
} // namespace tarvex
