#include "platform/posix/drive_map.h"

#include "platform/errors.h"
#include "platform/windows1252.h"
#include "support/temporary_directory.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using testing::UnorderedElementsAre;

std::string lettersOf(const DriveMap& map)
{
    std::string letters;
    for (const auto& drive : map.drives()) letters += drive.letter;
    return letters;
}

int codeOf(const std::function<void()>& call)
{
    try {
        call();
    } catch (const RuntimeError& error) {
        return static_cast<int>(error.code());
    }
    return 0;
}

constexpr int badFileName = 64;
constexpr int pathNotFound = 76;

/// Drives without a Wine prefix.
struct Drives : testing::Test {
    TemporaryDirectory disk;
    const std::string program = disk.makeDirectory("program");
    const std::string driveC = program + "/drive_c";
    const DriveMap map{DriveEnvironment{"", "", program, disk.path()}};

    /// The DOS path of the temporary directory.
    std::string base() const { return map.toDos(disk.path()); }
};

/// Drives of a Wine prefix.
struct WineDrives : testing::Test {
    TemporaryDirectory disk;
    const std::string prefix = disk.path() + "/home/.wine";
    WineDrives()
    {
        disk.makeDirectory("home/.wine/drive_c/tm");
        disk.makeDirectory("home/.wine/dosdevices");
        link("../drive_c", "c:");
    }
    void link(const std::string& target, const std::string& name) const
    {
        fs::create_directory_symlink(target, prefix + "/dosdevices/" + name);
    }
    DriveMap make() const { return DriveMap({"", disk / "home", disk / "program", disk.path()}); }
};

} // namespace

TEST_F(Drives, WithoutAPrefixAreTheProgramsOwnAndTheRoot)
{
    EXPECT_EQ(lettersOf(map), "cz");
    EXPECT_EQ(map.toNative("z:\\"), "/");
    EXPECT_EQ(map.toNative("Z:"), "/");
    EXPECT_FALSE(fs::exists(driveC)) << "made on demand only";
    EXPECT_EQ(map.toNative("C:\\macro.txt"), driveC + "/macro.txt");
    EXPECT_TRUE(fs::is_directory(driveC));
}

TEST_F(Drives, OfTheProgramIsMadeWhenItIsNeededAndIsNoDriveOfWine)
{
    const DriveMap::Drive& c = map.drives().front();
    EXPECT_TRUE(c.makeRoot);
    EXPECT_FALSE(c.isOwn || c.isChosen);
    EXPECT_TRUE(map.drives().back().isOwn);
}

TEST_F(Drives, FileOfTheProgramsDriveGetsTheLongestMatch)
{
    EXPECT_EQ(map.toDos(driveC + "/tm/mig.b50"), "c:\\tm\\mig.b50");
    EXPECT_EQ(map.toDos(driveC), "c:\\");
    EXPECT_EQ(map.toDos(driveC + "x").substr(0, 3), "z:\\") << "a longer name is no match";
    EXPECT_EQ(map.toDos("/"), "z:\\");
}

TEST_F(Drives, NamesAreFoundInAnyCaseComponentByComponent)
{
    const std::string file = disk.put("program/drive_c/TM/Files/Mig.B50", "x");
    EXPECT_EQ(map.toNative("c:\\tm\\files\\mig.b50"), file);
    EXPECT_EQ(map.toNative("C:/TM/FILES/MIG.B50"), file);
    EXPECT_EQ(map.toNative("c:\\\\tm\\.\\files\\mig.b50\\"), file);
}

TEST_F(Drives, ExactNameComesFirst)
{
    const std::string lower = disk.put("program/drive_c/mig.b50", "x");
    const std::string upper = disk.put("program/drive_c/MIG.B50", "x");
    EXPECT_EQ(map.toNative("c:\\mig.b50"), lower);
    EXPECT_EQ(map.toNative("c:\\MIG.B50"), upper);
}

TEST_F(Drives, NamesThatDontExistAreKeptAsGiven)
{
    disk.makeDirectory("program/drive_c/TM");
    EXPECT_EQ(map.toNative("c:\\tm\\New Folder\\Mig.B50"), driveC + "/TM/New Folder/Mig.B50");
    EXPECT_EQ(map.toDos(driveC + "/TM/New Folder/Mig.B50"), "c:\\TM\\New Folder\\Mig.B50");
}

TEST_F(Drives, DotsNeverLeaveTheDrive)
{
    EXPECT_EQ(map.toNative("c:\\..\\..\\etc\\..\\tm"), driveC + "/tm");
    EXPECT_EQ(map.toNative("c:\\a\\..\\b\\."), driveC + "/b");
    EXPECT_EQ(map.toNative("c:..\\x"), driveC + "/x");
}

TEST_F(Drives, FileHiddenByCaseLeadsToItselfAfterLowerCasing)
{
    for (const std::string name : {"Mig.b50", "mig.b50", "MIG.b50"}) {
        disk.put("program/drive_c/Tm/" + name, "x");
        disk.put("program/drive_c/tm/" + name, "x");
    }
    for (const std::string folder : {"/Tm/", "/tm/"}) {
        for (const std::string name : {"Mig.b50", "mig.b50", "MIG.b50"}) {
            const std::string file = driveC + folder + name;
            EXPECT_EQ(map.toNative(lowerUtf8(map.toDos(file))), file) << map.toDos(file);
            EXPECT_EQ(map.toNative(map.toDos(file)), file);
        }
    }
}

TEST_F(Drives, OddNamesLeadToThemselves)
{
    for (const std::string name : {"a\\b.b50", "c:", "c:\\d", "line\nbreak.b50", "\xE4.b50", "\u00C4.b50", "blank ",
                                   "~1", "a\tb", "\u0416.b50", "..\\x", "quo\"te'.b50", "*?", "...", "-rf"}) {
        const std::string file = disk.put("program/drive_c/" + name, "x");
        EXPECT_EQ(map.toNative(map.toDos(file)), file) << name;
        EXPECT_EQ(map.toNative(lowerUtf8(map.toDos(file))), file) << name;
    }
}

TEST_F(Drives, NewFileWithAnOddNameIsPlacedWhereTheUserSaid)
{
    const std::string file = driveC + "/a\\b.b50";
    EXPECT_EQ(map.toNative(map.toDos(file)), file);
}

TEST_F(Drives, RelativePathsGoFromTheWorkingDirectory)
{
    const std::string file = disk.put("Mig.b50", "x");
    EXPECT_EQ(map.toDos("Mig.b50"), base() + "\\Mig.b50");
    EXPECT_EQ(map.toDos("./program/../Mig.b50"), base() + "\\Mig.b50");
    EXPECT_EQ(map.toNative("mig.b50"), file);
    EXPECT_EQ(map.toNative("program\\..\\mig.b50"), file);
    EXPECT_EQ(map.toNative("\\etc"), "/etc");
}

TEST_F(Drives, DotDotBehindASymbolicLinkGoesWhereTheSystemGoes)
{
    disk.put("real/folder/x", "x");
    const std::string file = disk.put("real/Mig.b50", "x");
    fs::create_directory_symlink(disk / "real/folder", disk / "link");
    EXPECT_EQ(map.toNative(map.toDos(disk / "link/../Mig.b50")), file);
}

TEST_F(Drives, SymbolicLinksKeepTheUsersSpelling)
{
    disk.put("real/mig.b50", "x");
    fs::create_directory_symlink(disk / "real", disk / "link");
    EXPECT_EQ(map.toDos(disk / "link/mig.b50"), base() + "\\link\\mig.b50");
}

TEST_F(Drives, SymbolicLinkToTheProgramDirectoryStillMatchesItsDrive)
{
    fs::create_directory(driveC);
    fs::create_directory_symlink(program, disk / "link");
    EXPECT_EQ(map.toDos(disk / "link/drive_c/mig.b50"), "c:\\mig.b50");
    const DriveMap linked({"", "", disk / "link", disk.path()});
    EXPECT_EQ(linked.toDos(driveC + "/mig.b50"), "c:\\mig.b50");
    EXPECT_EQ(linked.toDos(disk / "link/drive_c/mig.b50"), "c:\\mig.b50");
}

TEST_F(Drives, NulOrEmptyPathIsAnErrorNotACut)
{
    const std::string nul("c:\\a\0b", 6);
    EXPECT_EQ(codeOf([&] { map.toNative(nul); }), badFileName);
    EXPECT_EQ(codeOf([&] { map.toDos(std::string("/a\0b", 4)); }), badFileName);
    EXPECT_EQ(codeOf([&] { map.toNative(""); }), badFileName);
    EXPECT_EQ(codeOf([&] { map.toDos(""); }), badFileName);
}

TEST_F(Drives, UnknownDriveOrServerIsNotFound)
{
    EXPECT_EQ(codeOf([&] { map.toNative("q:\\x"); }), pathNotFound);
    EXPECT_EQ(codeOf([&] { map.toNative("\\\\server\\share"); }), pathNotFound);
}

TEST_F(Drives, ListGivesTheNamesThatLeadToTheFiles)
{
    for (const char* name : {"Mig.b50", "mig.b50", "Su.b50", "a:b"}) disk.put("program/drive_c/"s + name, "x");
    EXPECT_THAT(map.list("c:\\"), UnorderedElementsAre("mig~1.b50", "mig.b50", "Su.b50", "a\uF03Ab"));
    EXPECT_THROW(map.list("c:\\none"), RuntimeError);
}

TEST_F(Drives, ArgumentMayBeADosOrANativePath)
{
    EXPECT_EQ(map.fromArgument(""), "");
    EXPECT_EQ(map.fromArgument("no\xFF.b50"), "no\xFF.b50");
    EXPECT_EQ(map.fromArgument("/no\xFF.b50"), "/no\xFF.b50");
    EXPECT_EQ(map.fromArgument("C:/tm\\Mig.b50"), "C:\\tm\\Mig.b50");
    EXPECT_EQ(map.fromArgument(driveC + "/mig.b50"), "c:\\mig.b50");
    EXPECT_EQ(map.fromArgument("mig.b50"), base() + "\\mig.b50");
    disk.put("a:b", "x");
    EXPECT_EQ(map.toNative(map.fromArgument("a:b")), disk / "a:b");
}

TEST(IsDosPath, NeedsALetterAColonAndASeparator)
{
    for (const char* path : {"c:", "C:\\", "z:/x", "a:", "A:", "Z:"}) EXPECT_TRUE(isDosPath(path)) << path;
    for (const char* path : {"", "@:", "[:", "`:", "{:", "c", "cc:\\", "1:\\", ":\\", "c:x", "/c:", "\\x"})
        EXPECT_FALSE(isDosPath(path)) << path;
}

TEST_F(WineDrives, AreThoseOfThePrefix)
{
    link("/", "z:");
    link("/dev", "d::");
    link(disk / "missing", "e:");
    disk.makeDirectory("usb");
    link(disk / "usb", "f:");
    const DriveMap map = make();
    EXPECT_EQ(lettersOf(map), "cfz");
    EXPECT_EQ(map.toNative("c:\\TM\\mig.b50"), prefix + "/drive_c/tm/mig.b50");
    EXPECT_EQ(map.toDos(disk / "usb/mig.b50"), "f:\\mig.b50");
    EXPECT_EQ(map.toDos(prefix + "/drive_c/tm"), "c:\\tm");
    EXPECT_EQ(map.toDos(prefix + "/dosdevices/c:/tm"), "c:\\tm");
    EXPECT_EQ(map.toDos(prefix + "/x"), map.toDos(prefix) + "\\x");
}

TEST_F(WineDrives, AFileOfADriveBehindTwoLinksKeepsTheNameThatItHasThere)
{
    fs::create_directory_symlink(disk.makeDirectory("real"), disk / "usb");
    fs::create_symlink(disk.put("elsewhere/mig.b50", ""), disk / "real/link.b50");
    link(disk / "usb", "f:");
    const DriveMap map = make();
    for (const std::string& folder : {disk / "usb", disk / "real", prefix + "/dosdevices/f:"})
        EXPECT_EQ(map.toDos(folder + "/link.b50"), "f:\\link.b50") << folder;
}

TEST_F(WineDrives, PrefixOfTheEnvironmentWinsOverTheHome)
{
    disk.makeDirectory("other/dosdevices");
    disk.makeDirectory("other/drive_c");
    fs::create_directory_symlink("../drive_c", disk / "other/dosdevices/c:");
    const DriveMap map({disk / "other", disk / "home", disk / "program", disk.path()});
    EXPECT_EQ(map.toNative("c:\\x"), disk / "other/drive_c/x");
}

TEST_F(WineDrives, RootIsReachableWhereThePrefixHasNone)
{
    EXPECT_EQ(lettersOf(make()), "cz");
    disk.makeDirectory("games");
    link(disk / "games", "z:");
    const DriveMap map = make();
    EXPECT_EQ(lettersOf(map), "cyz");
    EXPECT_EQ(map.toNative("y:\\"), "/");
    EXPECT_EQ(map.toDos(disk / "games/x"), "z:\\x");
}

TEST_F(WineDrives, PrefixWithoutADriveCDoesntCount)
{
    fs::remove(prefix + "/dosdevices/c:");
    link("/", "d:");
    EXPECT_EQ(lettersOf(make()), "cz");
}

TEST_F(WineDrives, AreOfAllLettersAndTheRootTakesTheLastThatIsFree)
{
    disk.makeDirectory("usb");
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        if (letter != 'c' && letter != 'd') link(disk / "usb", std::string(1, letter) + ":");
    }
    EXPECT_EQ(lettersOf(make()), "abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(make().toNative("d:\\"), "/");
    link(disk / "usb", "d:");
    EXPECT_EQ(make().toNative("d:\\"), disk / "usb") << "no letter is left for the root";
    EXPECT_EQ(make().toNative("a:\\x"), disk / "usb/x");
    EXPECT_EQ(make().toNative("z:\\x"), disk / "usb/x");
    EXPECT_EQ(codeOf([&] { (void)make().toDos("/etc"); }), pathNotFound);
}

TEST_F(WineDrives, AreNotTheProgramsOwnButItsRootIs)
{
    const DriveMap map = make();
    const DriveMap::Drive& c = map.drives().front();
    EXPECT_FALSE(c.isOwn || c.isChosen || c.makeRoot);
    const DriveMap::Drive& root = map.drives().back();
    EXPECT_TRUE(root.isOwn) << "Wine doesn't know it";
    EXPECT_FALSE(root.isChosen || root.makeRoot);
}

TEST_F(WineDrives, AFolderThatTheUserChoseTakesThePlaceOfTheirs)
{
    DriveMap map = make();
    map.choose('C', disk / "games/");
    map.choose('b', disk / "usb/../floppy");
    EXPECT_EQ(lettersOf(map), "bcz");
    EXPECT_EQ(map.toNative("c:\\x"), disk / "games/x") << "it needn't be there";
    EXPECT_EQ(map.toNative("b:\\x"), disk / "floppy/x");
    EXPECT_EQ(map.toDos(disk / "games/x"), "c:\\x");
    const DriveMap::Drive& chosen = map.drives().front();
    EXPECT_TRUE(chosen.isOwn && chosen.isChosen);
    EXPECT_FALSE(chosen.makeRoot);
    EXPECT_FALSE(fs::exists(disk / "games")) << "made by its user";
    map.choose('c', "");
    EXPECT_EQ(map.toNative("c:\\x"), prefix + "/drive_c/x");
    map.choose('b', "relative");
    EXPECT_EQ(lettersOf(map), "cz");
}

TEST_F(WineDrives, ChoicesAreForgottenTogether)
{
    DriveMap map = make();
    for (const char letter : {'a', 'z'}) map.choose(letter, disk / "games");
    EXPECT_EQ(lettersOf(map), "acyz");
    map.forgetChoices();
    EXPECT_EQ(lettersOf(map), "cz");
    EXPECT_EQ(map.toNative("z:\\"), "/");
}

TEST_F(WineDrives, OnlyLettersAreChosen)
{
    DriveMap map = make();
    for (const char sign : {'1', ':', '@', '[', '`', '{'}) map.choose(sign, disk / "games");
    EXPECT_EQ(lettersOf(map), "cz");
}

TEST_F(WineDrives, AChosenRootNeedsNoLetterOfItsOwn)
{
    DriveMap map = make();
    map.choose('r', "/");
    EXPECT_EQ(lettersOf(map), "cr");
    EXPECT_EQ(map.toNative("r:\\etc"), "/etc");
    EXPECT_EQ(map.toDos("/etc"), "r:\\etc");
}

TEST_F(WineDrives, AChosenFolderBehindALinkHasBothItsPaths)
{
    disk.makeDirectory("games");
    fs::create_directory_symlink(disk / "games", disk / "link");
    DriveMap map = make();
    map.choose('g', disk / "link");
    EXPECT_EQ(map.toDos(disk / "link/x"), "g:\\x");
    EXPECT_EQ(map.toDos(disk / "games/x"), "g:\\x");
}

TEST_F(WineDrives, LinkThatLeadsOutOfTheDriveKeepsTheDrive)
{
    disk.put("documents/mig.b50", "x");
    fs::create_directory_symlink(disk / "documents", prefix + "/drive_c/docs");
    EXPECT_EQ(make().toDos(prefix + "/drive_c/docs/mig.b50"), "c:\\docs\\mig.b50");
}

TEST_F(WineDrives, LinkThatLeadsToAnotherDriveKeepsTheOneOfTheUsersSpelling)
{
    const std::string games = disk.makeDirectory("a/folder/deep/below/the/other/drive/games");
    fs::create_directory_symlink(games, prefix + "/drive_c/games");
    link(games, "g:");
    ASSERT_GT(games.size(), prefix.size() + std::string("/drive_c").size()) << "the better match of the two";
    EXPECT_EQ(make().toDos(prefix + "/drive_c/games/mig.b50"), "c:\\games\\mig.b50");
}

} // namespace tarvex
