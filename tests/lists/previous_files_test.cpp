#include "lists/previous_files.h"

#include "documents/files/auto_save.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

/// What differs between the two lists.
struct Kind {
    const char* section;
    const char* countKey;
    const char* pathKey;
    const char* extension;
    MenuArray Menus::*array;
    MenuItem Menus::*parent;
    MenuItem Menus::*clear;
    std::vector<SettingText> Settings::*paths;
    std::int16_t Settings::*count;
    const char* clearCaption;
};

const Kind kinds[] = {
    {"PreviousJoystickFiles", "JFArrayNum", "JFPath", ".b50", &Menus::mnuJFArray, &Menus::mnuFilePrevious,
     &Menus::mnuPreviousClearAllJ, &Settings::JFPath, &Settings::JFArrayNum, "Clear all &joystick files"},
    {"PreviousMacroFiles", "MFArrayNum", "MFPath", ".m50", &Menus::mnuMFArray, &Menus::mnuFilePrevMacro,
     &Menus::mnuPreviousClearAllM, &Settings::MFPath, &Settings::MFArrayNum, "Clear all &macro files"},
};

/// The program with a list of `entries` files of one kind, which exist: c:\1.b50 is the newest.
class PreviousFile : public testing::TestWithParam<Kind> {
protected:
    PreviousFile() : t(false) { t.setIni("Miscellaneous", "OpenSingleFileOnly", "1"); }

    void startWith(int entries)
    {
        for (int i = 1; i <= entries; ++i) t.files.addFile(path(i), "BTN S1 x");
        t.setIni(kind().section, kind().countKey, std::to_string(entries));
        for (int i = 1; i <= entries; ++i) t.setIni(kind().section, kind().pathKey + std::to_string(i), path(i));
        t.start();
    }
    static const Kind& kind() { return GetParam(); }
    static std::string path(const std::string& name) { return "c:\\" + name + kind().extension; }
    static std::string path(int i) { return path(std::to_string(i)); }
    MenuArray& array() { return t.menus().*kind().array; }
    MenuItem& parent() { return t.menus().*kind().parent; }
    MenuItem& clear() { return t.menus().*kind().clear; }
    std::vector<SettingText>& paths() { return t.settings().*kind().paths; }
    std::string stored(int i) { return t.ini(kind().section, kind().pathKey + std::to_string(i)); }
    std::string storedCount() { return t.ini(kind().section, kind().countKey); }
    std::vector<std::string> captions()
    {
        std::vector<std::string> texts;
        for (int i = 1; i <= array().UBound(); ++i) texts.push_back(array()[i].Caption);
        return texts;
    }
    std::string documentPath()
    {
        Editor& editor = t.editor();
        return kind().array == &Menus::mnuJFArray ? editor.joystick.FilePath : editor.macro.FilePath;
    }

    TestProgram t;
};

INSTANTIATE_TEST_SUITE_P(Lists, PreviousFile, testing::ValuesIn(kinds),
                         [](const auto& kindOfList) { return std::string(kindOfList.param.section); });

TEST_P(PreviousFile, WithoutAListTheMenuIsGreyed)
{
    t.start();
    EXPECT_FALSE(parent().Enabled);
    EXPECT_FALSE(clear().Enabled);
    EXPECT_EQ(array().UBound(), 0);
    EXPECT_EQ(clear().Caption.get(), kind().clearCaption);
}

TEST_P(PreviousFile, TheListStandsOnTheMenuAtTheStart)
{
    startWith(3);
    EXPECT_TRUE(parent().Enabled);
    EXPECT_TRUE(clear().Enabled);
    EXPECT_FALSE(array()[0].Visible);
    EXPECT_THAT(captions(), ElementsAre(path(1), path(2), path(3)));
    EXPECT_TRUE(array()[3].Visible);
}

TEST_P(PreviousFile, AListOfOneFileStandsOnTheMenuAndCanBeCleared)
{
    startWith(1);
    EXPECT_TRUE(parent().Enabled);
    EXPECT_TRUE(clear().Enabled);
    EXPECT_FALSE(array()[0].Visible);
    EXPECT_TRUE(array()[1].Visible);
    clear().Click();
    EXPECT_TRUE(array()[0].Visible);
    EXPECT_EQ(stored(1), "");
}

TEST_P(PreviousFile, OneListDoesNotTouchTheOther)
{
    startWith(1);
    EXPECT_EQ(t.menus().mnuFilePrevious.Enabled && t.menus().mnuFilePrevMacro.Enabled, false);
    EXPECT_EQ(t.menus().mnuPreviousClearAllJ.Enabled && t.menus().mnuPreviousClearAllM.Enabled, false);
}

TEST_P(PreviousFile, AnItemOpensItsFileAndMovesToTheTop)
{
    startWith(3);
    array()[2].Click();
    EXPECT_EQ(documentPath(), path(2));
    EXPECT_THAT(captions(), ElementsAre(path(2), path(1), path(3)));
    EXPECT_EQ(stored(1), path(2)) << "written at once";
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_P(PreviousFile, The31stNewFileDropsTheOldestAndTheCountStays30)
{
    startWith(30);
    t.files.addFile(path("new"), "");
    t.openBoth(path("new"));
    EXPECT_EQ(t.settings().*kind().count, 30);
    EXPECT_EQ(storedCount(), "30");
    EXPECT_EQ(captions().front(), path("new"));
    EXPECT_EQ(captions().back(), path(29));
    EXPECT_EQ(stored(30), path(29));
    EXPECT_EQ(array().UBound(), 30);
}

TEST_P(PreviousFile, The30thNewFileStillFits)
{
    startWith(29);
    t.files.addFile(path("new"), "");
    t.openBoth(path("new"));
    EXPECT_EQ(storedCount(), "30");
    EXPECT_EQ(captions().back(), path(29));
}

TEST_P(PreviousFile, ReopeningTheNewestFileChangesNothingAndStillWritesTheKeys)
{
    startWith(3);
    t.setIni(kind().section, std::string(kind().pathKey) + "2", "changed by another program");
    t.setIni(kind().section, kind().countKey, "1");
    array()[1].Click();
    EXPECT_THAT(paths(), ElementsAre(path(1), path(2), path(3)));
    EXPECT_EQ(stored(2), path(2));
    EXPECT_EQ(storedCount(), "3");
}

TEST_P(PreviousFile, ReopeningTheFifthFileMovesItToTheTopAndKeepsTheOthersInOrder)
{
    startWith(7);
    array()[5].Click();
    EXPECT_THAT(paths(), ElementsAre(path(5), path(1), path(2), path(3), path(4), path(6), path(7)));
    EXPECT_THAT(captions(), testing::ElementsAreArray(paths()));
}

TEST_P(PreviousFile, TwoSpellingsOfAPathGiveOneEntryInLowerCase)
{
    t.start();
    t.files.addFile(path("a"), "");
    t.openBoth("C:\\A" + std::string(kind().extension));
    t.openBoth(path("a"));
    EXPECT_THAT(captions(), ElementsAre(path("a")));
    EXPECT_EQ(storedCount(), "1");
    EXPECT_EQ(stored(1), path("a"));
}

TEST_P(PreviousFile, AfterTheClearCommandTheKeysRemainEmptyAndTheCountIs0)
{
    startWith(3);
    clear().Click();
    EXPECT_EQ(storedCount(), "0");
    for (const int i : {1, 2, 3}) EXPECT_EQ(stored(i), "") << i;
    EXPECT_EQ(array().UBound(), 0);
    EXPECT_FALSE(parent().Enabled);
    EXPECT_FALSE(clear().Enabled);
    EXPECT_TRUE(paths().empty());
}

TEST_P(PreviousFile, AClearedListTakesFilesAgain)
{
    startWith(3);
    clear().Click();
    t.openBoth(path(2));
    EXPECT_TRUE(parent().Enabled);
    EXPECT_TRUE(clear().Enabled);
    EXPECT_FALSE(array()[0].Visible);
    EXPECT_THAT(captions(), ElementsAre(path(2)));
    EXPECT_EQ(storedCount(), "1");
}

// The buffer of 100 characters has its end in it.
TEST_P(PreviousFile, APathOfMoreThan100CharactersLoadsCutAtThe100thAndIsWrittenWhole)
{
    const std::string longPath = path(std::string(120, 'x'));
    t.files.addFile(longPath, "");
    t.start();
    t.openBoth(longPath);
    EXPECT_THAT(captions(), ElementsAre(longPath));
    EXPECT_EQ(stored(1), longPath);
    t.files.removeFile(longPath);
    t.start();
    EXPECT_THAT(captions(), ElementsAre(longPath.substr(0, 99)));
    t.files.addFile(path(1), "BTN S1 x");
    t.openBoth(path(1));
    EXPECT_EQ(stored(2), longPath) << "moving it down doesn't write it cut";
}

TEST_P(PreviousFile, ALongPathWhoseFileIsThereLoadsWhole)
{
    const std::string longPath = path(std::string(120, 'x'));
    t.files.addFile(longPath, "BTN S1 x");
    t.setIni(kind().section, kind().countKey, "1");
    t.setIni(kind().section, std::string(kind().pathKey) + "1", longPath);
    t.start();
    EXPECT_THAT(captions(), ElementsAre(longPath));
}

TEST_P(PreviousFile, AnItemThatWasCutOpensTheWholePathAndNeverWhatLiesAtTheCutOne)
{
    const std::string longPath = path(std::string(120, 'x'));
    t.files.addFile(longPath, "BTN S1 x");
    t.files.addFile(longPath.substr(0, 99), "wrong");
    startWith(1);
    t.setIni(kind().section, kind().countKey, "2");
    t.setIni(kind().section, std::string(kind().pathKey) + "2", longPath);
    t.start();
    EXPECT_THAT(captions(), ElementsAre(path(1), longPath.substr(0, 99)));
    array()[2].Click();
    EXPECT_EQ(documentPath(), longPath);
    EXPECT_THAT(captions(), ElementsAre(longPath, path(1))) << "one entry, not two";

    t.start();
    t.files.removeFile(longPath);
    t.dialogues.boxes.clear();
    array()[1].Click();
    EXPECT_EQ(t.lastBox().title, "Can't find file");
    EXPECT_NE(t.lastBox().text.find(longPath), std::string::npos);
    EXPECT_NE(documentPath(), longPath.substr(0, 99));
}

TEST_P(PreviousFile, TwoPathsThatAreCutAlikeStayTwo)
{
    const std::string folder(110, 'x');
    startWith(1);
    t.setIni(kind().section, kind().countKey, "3");
    t.setIni(kind().section, std::string(kind().pathKey) + "2", path(folder + "\\a"));
    t.setIni(kind().section, std::string(kind().pathKey) + "3", path(folder + "\\b"));
    t.start();
    t.files.addFile(path("new"), "BTN S1 x");
    t.openBoth(path("new"));
    EXPECT_EQ(stored(3), path(folder + "\\a"));
    EXPECT_EQ(stored(4), path(folder + "\\b"));
}

TEST_P(PreviousFile, AFileThatIsGoneIsReportedAndStaysOnTheMenu)
{
    startWith(2);
    t.files.removeFile(path(2));
    array()[2].Click();
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.lastBox().title, "Can't find file");
    EXPECT_EQ(t.lastBox().text, "There's a problem here ... I couldn't find " + path(2) +
                                    " which probably means you've deleted it or moved it. Sorry!");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
    EXPECT_THAT(captions(), ElementsAre(path(1), path(2)));
}

TEST_P(PreviousFile, OfAPathThatStandsTwiceTheLastMovesToTheTop)
{
    startWith(3);
    t.setIni(kind().section, std::string(kind().pathKey) + "1", path(3));
    t.start();
    t.openBoth(path(2));
    t.openBoth(path(3));
    EXPECT_THAT(paths(), ElementsAre(path(3), path(2), path(3)));
}

TEST_P(PreviousFile, ANewestPathThatStandsTwiceLeavesTheListAsItIs)
{
    startWith(3);
    t.setIni(kind().section, std::string(kind().pathKey) + "3", path(1));
    t.start();
    t.openBoth(path(1));
    EXPECT_THAT(paths(), ElementsAre(path(1), path(2), path(1)));
}

TEST_P(PreviousFile, ADamagedCountAbove30GivesAListAsLongUntilTheNextUpdateMovesEntriesWithinIt)
{
    startWith(2);
    t.setIni(kind().section, kind().countKey, "35");
    t.start();
    EXPECT_EQ(array().UBound(), 35);
    EXPECT_EQ(captions()[2], "");
    t.files.addFile(path("new"), "");
    t.openBoth(path("new"));
    EXPECT_EQ(array().UBound(), 35);
    EXPECT_EQ(captions().front(), path("new"));
    EXPECT_EQ(captions()[2], path(2));
    EXPECT_EQ(storedCount(), "35");
}

TEST_P(PreviousFile, ADamagedCountBelow0OrBeyond16BitsIsAnEmptyList)
{
    for (const char* count : {"-3", "40000", "much"}) {
        t.setIni(kind().section, kind().countKey, count);
        t.start();
        EXPECT_EQ(array().UBound(), 0) << count;
        EXPECT_FALSE(parent().Enabled) << count;
        t.files.addFile(path("a"), "");
        t.openBoth(path("a"));
        EXPECT_EQ(storedCount(), "1") << count;
    }
}

TEST_P(PreviousFile, WithSettingsThatCannotBeWrittenTheMenuStillFollows)
{
    startWith(2);
    t.files.setReadOnly(TestMachine::iniPath);
    array()[2].Click();
    EXPECT_THAT(captions(), ElementsAre(path(2), path(1)));
    EXPECT_EQ(stored(1), path(1));
    EXPECT_TRUE(t.dialogues.boxes.empty());
    clear().Click();
    EXPECT_FALSE(parent().Enabled);
}

TEST_P(PreviousFile, ALineBreakInAPathDoesNotBreakTheSettings)
{
    t.start();
    const std::string odd = "c:\\a\r\n[Evil]\r\nx=1" + std::string(kind().extension);
    t.files.addFile(odd, "");
    t.openBoth(odd);
    EXPECT_EQ(t.ini("Evil", "x"), "(none)");
    EXPECT_EQ(t.ini("FileLocations", "JoyName"), "1");
}

// ---- what enters the lists ------------------------------------------------------------------------------------------

TEST(PreviousFiles, OpeningAPairEntersBothLists)
{
    TestProgram t;
    t.files.addFile("c:\\tm\\mig.b50", "BTN S1 x");
    t.files.addFile("c:\\tm\\mig.m50", "");
    t.openBoth("c:\\tm\\mig.b50");
    EXPECT_THAT(t.settings().JFPath, ElementsAre("c:\\tm\\mig.b50"));
    EXPECT_THAT(t.settings().MFPath, ElementsAre("c:\\tm\\mig.m50"));
}

TEST(PreviousFiles, AFileThatCouldNotBeReadDoesNotEnterTheList)
{
    TestProgram t;
    t.files.addFile("c:\\tm\\mig.b50", "BTN S1 x");
    t.files.failReads("c:\\tm\\mig.b50", RuntimeError(ErrorCode::PathFileAccess, "Path/File access error"));
    t.openBoth("c:\\tm\\mig.b50");
    EXPECT_TRUE(t.settings().JFPath.empty());
}

TEST(PreviousFiles, SaveSaveAsAndTheAutomaticSaveEnterTheList)
{
    TestProgram t;
    t.typeJoystick("BTN S1 x");
    AutoSaveFile(t.editor());
    EXPECT_THAT(t.settings().JFPath, ElementsAre("c:\\tm\\b50progs\\untitled.b50"));
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\Mig.b50"};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(t.settings().JFPath.front(), "c:\\tm\\b50progs\\mig.b50");
    t.menus().mnuPreviousClearAllJ.Click();
    t.typeJoystick("BTN S2 y");
    t.menus().mnuFileSave.Click();
    EXPECT_THAT(t.settings().JFPath, ElementsAre("c:\\tm\\b50progs\\mig.b50"));
}

TEST(PreviousFiles, TheMacroFileEntersItsOwnListWhenItIsSaved)
{
    TestProgram t;
    t.editor().TabStrip1.Select(2);
    t.typeMacro("Fire = f");
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\Mig.m50"};
    t.menus().mnuFileSave.Click();
    EXPECT_THAT(t.settings().MFPath, ElementsAre("c:\\tm\\b50progs\\mig.m50"));
    EXPECT_TRUE(t.settings().JFPath.empty());
}

TEST(PreviousFiles, AFailedSaveEntersNothing)
{
    TestProgram t;
    t.typeJoystick("BTN S1 x");
    t.files.failWrites("c:\\tm\\b50progs\\mig.b50", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\mig.b50", std::nullopt};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_TRUE(t.settings().JFPath.empty());
}

TEST(PreviousFiles, AnItemOpensTheWholePairUnlessSingleFilesAreWanted)
{
    TestProgram t;
    t.files.addFile("c:\\tm\\mig.b50", "BTN S1 x");
    t.files.addFile("c:\\tm\\mig.m50", "");
    t.openBoth("c:\\tm\\mig.b50");
    t.menus().mnuFileNewBoth.Click();
    t.menus().mnuMFArray[1].Click();
    EXPECT_EQ(t.editor().joystick.FilePath, "c:\\tm\\mig.b50");
    t.menus().mnuFileNewBoth.Click();
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.menus().mnuMFArray[1].Click();
    EXPECT_EQ(t.editor().joystick.FileName, "untitled.b50");
    EXPECT_EQ(t.editor().macro.FilePath, "c:\\tm\\mig.m50");
}

TEST(UpdateRecentJFMenuList, LowerCasesTheSharedPathSoCallersMustTakeTheirOwnCopyFirst)
{
    TestProgram t;
    PreviousFiles& files = t.program().lists.previous;
    files.LatestJoystickFile = "C:\\\u00C4.F22";
    UpdateRecentJFMenuList(files);
    EXPECT_EQ(files.LatestJoystickFile, "c:\\\u00E4.f22");
    EXPECT_EQ(t.menus().mnuJFArray[1].Caption.get(), "c:\\\u00E4.f22");
}

TEST(IsJFonMenuAlready, IsMinus1ForAnExactCaptionAnd0Otherwise)
{
    TestProgram t;
    PreviousFiles& files = t.program().lists.previous;
    EXPECT_EQ(IsJFonMenuAlready(files, "c:\\a.b50"), 0);
    files.LatestJoystickFile = "c:\\a.b50";
    UpdateRecentJFMenuList(files);
    EXPECT_EQ(IsJFonMenuAlready(files, "c:\\a.b50"), -1);
    EXPECT_EQ(IsJFonMenuAlready(files, "C:\\a.b50"), 0);
    EXPECT_EQ(IsMFonMenuAlready(files, "c:\\a.b50"), 0);
}

} // namespace
} // namespace tarvex
