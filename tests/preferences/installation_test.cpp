#include "preferences/installation.h"

#include "support/memory_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* own = "c:\\tarvex";
constexpr const char* settingsText = "[Miscellaneous]\r\nUndoMax=12\r\n";

struct InstallationTest : testing::Test {
    MemoryFiles files;

    InstallationTest()
    {
        files.addDirectory("d:");
        files.addDirectory(own);
    }
    void addOld(const std::string& name, const std::string& bytes = "x") { files.addFile("d:\\old\\" + name, bytes); }
    FoundPart found(ImportPart part) { return examine(files, "d:\\old")[part]; }
    ImportReport importOnly(ImportPart part)
    {
        std::array<bool, importParts> ticked{};
        ticked[static_cast<std::size_t>(part)] = true;
        return import(files, examine(files, "d:\\old"), ticked, own);
    }
    std::string contents(const std::string& name) const
    {
        return files.contents(own + ("\\" + name)).value_or("(no file)");
    }
};

FoundPart partOf(std::size_t count, std::uint64_t bytes)
{
    FoundPart part;
    part.files.resize(count, "a");
    part.bytes = bytes;
    return part;
}

TEST(SizeText, IsInKilobytesThatAreBegunAndInMegabytesFromTenThousandOn)
{
    EXPECT_EQ(sizeText(partOf(1, 0)), "1 file, 0 KB");
    EXPECT_EQ(sizeText(partOf(2, 1)), "2 files, 1 KB");
    EXPECT_EQ(sizeText(partOf(2, 1024)), "2 files, 1 KB");
    EXPECT_EQ(sizeText(partOf(2, 1025)), "2 files, 2 KB");
    EXPECT_EQ(sizeText(partOf(2, 9'999 * 1024)), "2 files, 9999 KB");
    EXPECT_EQ(sizeText(partOf(2, 9'999 * 1024 + 1)), "2 files, 9 MB");
    EXPECT_EQ(sizeText(partOf(2, 10 << 20)), "2 files, 10 MB");
}

TEST_F(InstallationTest, ItsFilesAreThoseOfTheProgram)
{
    for (const char* name : {"Tarvex.ini", "TCA.ini", "Lists.ini", "Other.ini", "Templates\\a.RTF", "Templates\\b.txt",
                             "Templates\\c.exe", "Backup\\any.thing"})
        addOld(name, settingsText);
    addOld("TCA.ini", "[Options]\r\nTCAGridCellSize=3\r\n");
    addOld("Lists.ini", "[Loaders]\r\nNumPreviousLoaders=1\r\n");
    EXPECT_THAT(found(ImportPart::Settings).files, ElementsAre("Tarvex.ini", "TCA.ini"));
    EXPECT_THAT(found(ImportPart::Lists).files, ElementsAre("Lists.ini"));
    EXPECT_THAT(found(ImportPart::Templates).files, ElementsAre("a.RTF", "b.txt"));
    EXPECT_THAT(found(ImportPart::Backups).files, ElementsAre("any.thing"));
    EXPECT_EQ(found(ImportPart::Templates).folder, "d:\\old\\Templates\\");
    EXPECT_EQ(found(ImportPart::Backups).folder, "d:\\old\\Backup\\");
    EXPECT_EQ(found(ImportPart::Backups).bytes, std::string(settingsText).size());
    EXPECT_FALSE(examine(files, "d:\\old").isEmpty());
    EXPECT_EQ(examine(files, "d:\\old\\").folder, "d:\\old");
}

TEST_F(InstallationTest, AFolderWithoutAnythingOfItIsEmpty)
{
    files.addDirectory("d:\\old\\Templates");
    EXPECT_TRUE(examine(files, "d:\\old").isEmpty());
    addOld("Backup", "no folder");
    EXPECT_FALSE(examine(files, "d:\\old").isEmpty()) << "what can't be taken is to be said";
}

TEST_F(InstallationTest, ADamagedFileOfSettingsDoesNotCount)
{
    addOld("Tarvex.ini", settingsText);
    addOld("TCA.ini", "[Nothing]\r\nof=ours\r\n");
    const FoundPart settings = found(ImportPart::Settings);
    EXPECT_THAT(settings.files, ElementsAre("Tarvex.ini"));
    EXPECT_EQ(settings.bytes, std::string(settingsText).size());
    EXPECT_EQ(settings.leftOut, "\nTCA.ini: damaged; there is no setting in it");
}

TEST_F(InstallationTest, AListOfTheUserAloneIsASettingToo)
{
    addOld("Tarvex.ini", "[Favourites]\r\nFavName1=mine\r\n");
    EXPECT_THAT(found(ImportPart::Settings).files, ElementsAre("Tarvex.ini"));
}

TEST_F(InstallationTest, AFileOfSixteenMegabytesIsTakenAndALargerOneIsNot)
{
    const std::string most(importBound::fileBytes, 'x');
    addOld("Backup\\a", most);
    addOld("Backup\\b", most + "x");
    const FoundPart backups = found(ImportPart::Backups);
    EXPECT_THAT(backups.files, ElementsAre("a"));
    EXPECT_EQ(backups.leftOut, "\nb: larger than 16 MB");
}

TEST_F(InstallationTest, WhatIsLeftOutIsNamedUpToAScreenfull)
{
    for (int i = 100; i < 150; ++i) {
        addOld("Backup\\" + std::to_string(i));
        files.makeLinkOutside("d:\\old\\Backup\\" + std::to_string(i));
    }
    const std::string leftOut = found(ImportPart::Backups).leftOut;
    EXPECT_EQ(leftOut.substr(0, 42), "\n100: a link that leads out of the folder\n");
    EXPECT_TRUE(leftOut.ends_with("folder\n...")) << leftOut;
    EXPECT_EQ(leftOut.find("..."), leftOut.size() - 3) << "once";
    EXPECT_GT(leftOut.size(), 1000U);
    EXPECT_LT(leftOut.size(), 1060U);
}

const std::string tooMuch = "more than 10000 files or 256 MB; copy what you want of it by hand";

TEST_F(InstallationTest, AFolderMayHoldTenThousandFiles)
{
    for (std::size_t i = 0; i < importBound::files; ++i) addOld("Templates\\" + std::to_string(i) + ".txt");
    EXPECT_EQ(found(ImportPart::Templates).whyNot, "");
    EXPECT_EQ(found(ImportPart::Templates).files.size(), importBound::files);
    addOld("Templates\\one more.txt");
    EXPECT_EQ(found(ImportPart::Templates).whyNot, tooMuch);
}

TEST_F(InstallationTest, AFolderMayHold256Megabytes)
{
    const std::string most(importBound::fileBytes, 'x');
    for (std::uint64_t bytes = 0; bytes < importBound::partBytes; bytes += most.size())
        addOld("Backup\\" + std::to_string(bytes), most);
    EXPECT_EQ(found(ImportPart::Backups).whyNot, "");
    addOld("Backup\\more", "x");
    EXPECT_EQ(found(ImportPart::Backups).whyNot, tooMuch);
}

TEST_F(InstallationTest, SettingsThatCannotAllBeWrittenAreAllPutBack)
{
    addOld("Tarvex.ini", settingsText);
    addOld("Layouts.ini", "[Joystick Layout]\r\nLOTextFontSize=9\r\n");
    addOld("TCA.ini", "[Options]\r\nTCAGridCellSize=3\r\n");
    files.addFile("c:\\tarvex\\Tarvex.ini", "mine");
    files.failWrites("c:\\tarvex\\TCA.ini", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    const ImportReport report = importOnly(ImportPart::Settings);
    EXPECT_EQ(report.copied, 0U);
    EXPECT_EQ(report.problems, "\nTCA.ini: Disk full (so I've left these settings as they were)");
    EXPECT_EQ(contents("Tarvex.ini"), "mine");
    EXPECT_EQ(contents("Layouts.ini"), "(no file)");
}

TEST_F(InstallationTest, TodaysSettingsAreAllKept)
{
    const std::vector<std::string> names{"Tarvex.ini", "Lists.ini", "Layouts.ini", "TCA.ini", "Platform.ini"};
    for (const std::string& name : names) files.addFile("c:\\tarvex\\" + name, "mine " + name);
    addOld("Tarvex.ini", settingsText);
    const ImportReport report = importOnly(ImportPart::Settings);
    EXPECT_EQ(report.keptIn, "c:\\tarvex\\Settings before import");
    EXPECT_EQ(report.copied, 1U);
    EXPECT_EQ(report.problems, "");
    for (const std::string& name : names) EXPECT_EQ(contents("Settings before import\\" + name), "mine " + name);
    EXPECT_EQ(contents("Tarvex.ini"), settingsText);
}

TEST_F(InstallationTest, AfterThreeFailuresTheRestOfAFolderIsGivenUp)
{
    for (const char* name : {"a.txt", "b.txt", "c.txt", "d.txt", "e.txt"}) {
        addOld("Templates\\" + std::string(name));
        if (name[0] != 'b')
            files.failWrites("c:\\tarvex\\Templates\\" + std::string(name),
                             RuntimeError(ErrorCode::DiskFull, "Disk full"));
    }
    const ImportReport report = importOnly(ImportPart::Templates);
    EXPECT_EQ(report.copied, 1U);
    EXPECT_EQ(report.problems, "\na.txt: Disk full\nc.txt: Disk full\nd.txt: Disk full\n"
                               "I gave up on the rest of Templates");
    EXPECT_EQ(contents("Templates\\b.txt"), "x");
}

TEST_F(InstallationTest, AFileOfTheSameSizeWithOtherContentsIsKeptBeside)
{
    addOld("Backup\\a.bak", "old");
    files.addFile("c:\\tarvex\\Backup\\a.bak", "new");
    EXPECT_EQ(importOnly(ImportPart::Backups).copied, 1U);
    EXPECT_EQ(contents("Backup\\a.bak"), "new");
    EXPECT_EQ(contents("Backup\\a-2.bak"), "old");
    EXPECT_EQ(importOnly(ImportPart::Templates).copied, 0U) << "nothing there";
}

TEST_F(InstallationTest, TheNearestFolderWithSettingsIsTheInstallation)
{
    files.addFile("d:\\a\\deep\\Tarvex.ini", "");
    files.addFile("d:\\z\\Tarvex.ini", "");
    EXPECT_EQ(findInstallation(files, "d:\\"), "d:\\z");
    EXPECT_EQ(findInstallation(files, "d:\\a"), "d:\\a\\deep");
    EXPECT_EQ(findInstallation(files, "d:\\a\\deep"), "d:\\a\\deep");
    EXPECT_EQ(findInstallation(files, "d:\\nowhere"), "d:\\nowhere");
}

TEST_F(InstallationTest, TheSearchEndsAfterFiftyThousandEntries)
{
    for (int i = 0; i < 50'000; ++i) files.addFile("d:\\many\\" + std::to_string(100'000 + i), "");
    files.addFile("d:\\many\\zz\\Tarvex.ini", "");
    EXPECT_EQ(findInstallation(files, "d:\\many"), "d:\\many");
    files.removeFile("d:\\many\\100000");
    EXPECT_EQ(findInstallation(files, "d:\\many"), "d:\\many\\zz");
}

} // namespace
} // namespace tarvex
