#include "shell/settings_store.h"

#include "shell/errors.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <set>

namespace tarvex {
namespace {

struct Store : TestMachine {
    Settings settings;
    ErrorRecord errors;
    SettingsStore store{files, programDirectory, settings, errors};
};

TEST(SettingsTable, NamesEveryKeyOnceAPerFileAndSection)
{
    std::set<std::string> keys;
    for (const SettingRow& row : settingsTable()) {
        const std::string name =
            std::string(fileNameOf(row.file)) + "/" + std::string(row.section) + "/" + std::string(row.key);
        EXPECT_TRUE(keys.insert(name).second) << name;
        EXPECT_FALSE(row.meaning.empty()) << name;
    }
    EXPECT_EQ(keys.size(), 125U);
}

TEST(GetOptions, WithNoFileAtAllYieldsTheDefaults)
{
    Store t;
    t.store.GetOptions();
    EXPECT_EQ(t.settings.ProgramFilesPath, "");
    EXPECT_EQ(t.settings.JoystickExtension, "b50");
    EXPECT_EQ(t.settings.MacroExtension, "m50");
    EXPECT_EQ(t.settings.GamesCaption, "&Games");
    EXPECT_EQ(t.settings.FirstTimeUsed, 1);
    EXPECT_EQ(t.settings.ShowTips, 1);
    EXPECT_EQ(t.settings.AutoSaveTime, 10);
    EXPECT_EQ(t.settings.CreateBackup, 1);
    EXPECT_EQ(t.settings.FlatToolbar, 1);
    EXPECT_EQ(t.settings.MacroFrameWidth, 185);
    EXPECT_EQ(t.settings.DefaultDLYvalue, 60);
    EXPECT_EQ(t.settings.UndoMax, 10);
    EXPECT_EQ(t.settings.ApplyColoursOnFileOpen, 1);
    EXPECT_EQ(t.settings.ValidUser, "User unknown");
    EXPECT_EQ(t.errors.ErrorProcedure, "");
}

TEST(GetWinloadStuff, WithNoFileYieldsItsDefaults)
{
    Store t;
    t.store.read(Access::GetWinloadStuff, "MODULE GetWinloadStuff");
    EXPECT_EQ(t.settings.WinLoadThr, 2);
    EXPECT_EQ(t.settings.WinLoadMouse, 3);
    EXPECT_EQ(t.settings.WinLoadMouseType, 0);
}

TEST(GetMumPosition, WithNoFileIsMaximisedOverTheOldScreen)
{
    Store t;
    t.store.read(Access::GetMumPosition, "MUM GetMumPosition");
    EXPECT_EQ(t.settings.MumWidthAtStartup, 13320.0F);
    EXPECT_EQ(t.settings.MumHeightAtStartup, 8895.0F);
    EXPECT_EQ(t.settings.MumWindowstate, 2);
}

TEST(SaveOptions, CreatesTheFileWithItsKeys)
{
    Store t;
    t.store.GetOptions();
    t.store.SaveOptions();
    EXPECT_EQ(t.ini("FileLocations", "JoystickExtension"), "b50");
    EXPECT_EQ(t.ini("Miscellaneous", "UndoMax"), "10");
    EXPECT_EQ(t.ini("Colours", "ApplyColoursOnFileOpen"), "1");
    EXPECT_EQ(t.ini("FileLocations", "ShowTips"), "(none)") << "only the tip window writes it";
    EXPECT_EQ(t.ini("WinLoad", "WinLoadThr"), "(none)") << "belongs to SaveWinLoadStuff";
}

TEST(SaveOptions, ReachesTheDiskOnce)
{
    Store t;
    t.store.GetOptions();
    t.store.SaveOptions();
    EXPECT_EQ(t.files.writes().size(), 1U);
    t.store.SaveOptions();
    EXPECT_EQ(t.files.writes().size(), 1U) << "nothing changed, nothing to write";
}

TEST(GetOptions, APathOf99CharactersSurvivesAndALongerOneIsCutTo99)
{
    for (const std::size_t length : {99U, 100U, 250U}) {
        Store t;
        t.setIni("FileLocations", "CTFJPath", std::string(length, 'x'));
        t.store.GetOptions();
        EXPECT_EQ(t.settings.CTFJPath, std::string(99, 'x')) << length;
    }
}

/// A path of 120 characters.
std::string longPath() { return "c:\\" + std::string(113, 'x') + ".exe"; }

TEST(GetOptions, ALongPathIsTakenWholeWhereOnlyTheWholeOneLeadsAnywhere)
{
    Store t;
    t.files.addFile(longPath(), "");
    t.files.addDirectory(longPath() + "s");
    t.setIni("FileLocations", "B50LoadPath", longPath());
    t.setIni("FileLocations", "ProgramFilesPath", longPath() + "s");
    t.setIni("FileLocations", "CTFJPath", longPath() + "gone");
    t.store.GetOptions();
    EXPECT_EQ(t.settings.B50LoadPath, longPath());
    EXPECT_EQ(t.settings.ProgramFilesPath, longPath() + "s");
    EXPECT_EQ(t.settings.CTFJPath, longPath().substr(0, 99)) << "nothing is there either way";
}

TEST(GetOptions, ALongPathIsCutWhereTheCutOneLeadsSomewhereAndKnowsTheWhole)
{
    Store t;
    t.files.addFile(longPath(), "");
    t.files.addFile(longPath().substr(0, 99), "another program");
    t.setIni("FileLocations", "B50LoadPath", longPath());
    t.store.GetOptions();
    EXPECT_EQ(t.settings.B50LoadPath, longPath().substr(0, 99));
    EXPECT_EQ(t.settings.B50LoadPath.whole(), longPath());
}

TEST(SaveOptions, WhatWasReadCutIsNotWrittenBackCut)
{
    Store t;
    t.setIni("FileLocations", "CTFJPath", longPath());
    t.setIni("Miscellaneous", "ValidUser", std::string(150, 'u'));
    t.setIni("WinLoad", "WinLoadString", std::string(60, 'o'));
    t.store.GetOptions();
    t.store.SaveOptions();
    t.store.write(Access::SaveWinLoadStuff, "MODULE SaveWinLoadStuff");
    EXPECT_EQ(t.ini("FileLocations", "CTFJPath"), longPath());
    EXPECT_EQ(t.ini("Miscellaneous", "ValidUser"), std::string(150, 'u'));
    EXPECT_EQ(t.ini("WinLoad", "WinLoadString"), std::string(60, 'o'));
    t.settings.ValidUser = "Ned";
    t.store.SaveOptions();
    EXPECT_EQ(t.ini("Miscellaneous", "ValidUser"), "Ned");
}

TEST(SaveOptions, ANumberThatTheFileSpellsInItsOwnWayKeepsItsSpelling)
{
    Store t;
    t.setIni("Miscellaneous", "UndoMax", "010 levels");
    t.setIni("Miscellaneous", "AutoSaveTime", "+7");
    t.setIni("Colours", "BTNColour", "0255");
    t.setIni("Miscellaneous", "MumWidthAtStartup", "9000.0");
    t.store.GetOptions();
    t.store.GetColours();
    t.store.read(Access::GetMumPosition, "MUM GetMumPosition");
    t.store.SaveOptions();
    t.store.write(Access::SaveColourScheme, "PREFS SaveColourScheme");
    t.store.write(Access::SaveMumPosition, "MUM SaveMumPosition");
    EXPECT_EQ(t.ini("Miscellaneous", "UndoMax"), "010 levels");
    EXPECT_EQ(t.ini("Miscellaneous", "AutoSaveTime"), "+7");
    EXPECT_EQ(t.ini("Colours", "BTNColour"), "0255");
    EXPECT_EQ(t.ini("Miscellaneous", "MumWidthAtStartup"), "9000.0");
    t.settings.UndoMax = 11;
    t.store.SaveOptions();
    EXPECT_EQ(t.ini("Miscellaneous", "UndoMax"), "11");
}

TEST(SaveOptions, AValueThatIsNoNumberGivesWayToTheOneInMemory)
{
    Store t;
    t.setIni("Colours", "BTNColour", "blue");
    t.store.GetColours();
    t.settings.BTNColour = 0;
    t.store.write(Access::SaveColourScheme, "PREFS SaveColourScheme");
    EXPECT_EQ(t.ini("Colours", "BTNColour"), "0");
}

TEST(GetWinloadStuff, AnOptionStringIsCutTo49Characters)
{
    Store t;
    t.setIni("WinLoad", "WinLoadString", std::string(60, 'o'));
    t.store.read(Access::GetWinloadStuff, "MODULE GetWinloadStuff");
    EXPECT_EQ(t.settings.WinLoadString, std::string(49, 'o'));
}

TEST(GetOptions, AHandEditedUndoMaxBelowTheDialoguesBoundIsUsedAsItStands)
{
    Store t;
    t.setIni("Miscellaneous", "UndoMax", "5");
    t.store.GetOptions();
    EXPECT_EQ(t.settings.UndoMax, 5);
}

TEST(SaveOptions, LoadSafeinComposerIsEmptyAfterwards)
{
    Store t;
    t.setIni("Miscellaneous", "LoadSafeinComposer", "1");
    t.store.GetOptions();
    t.store.SaveOptions();
    EXPECT_EQ(t.ini("Miscellaneous", "LoadSafeinComposer"), "");
    EXPECT_NE(t.fileText(Store::iniPath).find("LoadSafeinComposer="), std::string::npos);
}

TEST(GetOptions, AggressiveFocusPutsTheComposerOnTopAndTheNextSaveWritesIt)
{
    Store t;
    t.setIni("Miscellaneous", "AllowAggressiveFocus", "1");
    t.setIni("Miscellaneous", "CompOnTop", "0");
    t.store.GetOptions();
    EXPECT_EQ(t.settings.CompOnTop, 1);
    t.store.SaveOptions();
    EXPECT_EQ(t.ini("Miscellaneous", "CompOnTop"), "1");
}

TEST(GetOptions, WithoutAggressiveFocusCompOnTopStaysAsTheFileHasIt)
{
    Store t;
    t.setIni("Miscellaneous", "CompOnTop", "0");
    t.store.GetOptions();
    EXPECT_EQ(t.settings.CompOnTop, 0);
}

TEST(SaveOptions, AlwaysShowCompileDownloadSurvives)
{
    Store t;
    t.setIni("FileLocations", "AlwaysShowCompileDownload", "1");
    t.store.GetOptions();
    EXPECT_EQ(t.settings.AlwaysShowCompileDownload, 1);
    t.settings.AlwaysShowCompileDownload = 0;
    t.store.SaveOptions();
    EXPECT_EQ(t.ini("FileLocations", "AlwaysShowCompileDownload"), "1");
}

TEST(GetColours, WithoutTheSectionPaintsEverythingInOneColour)
{
    Store t;
    t.store.GetColours();
    for (const Colour colour :
         {t.settings.BackgroundColour, t.settings.BTNColour, t.settings.SlashColour, t.settings.RAWColour,
          t.settings.MiscellaneousColour, t.settings.MacroBackgroundColour, t.settings.RemStatements})
        EXPECT_EQ(colour, 16744448);
    EXPECT_EQ(t.settings.TextFontName, "Arial");
    EXPECT_EQ(t.settings.TextFontSize, 10);
}

TEST(GetColours, AKeyWithLettersKeepsTheEarlierValueIsReportedAndTheNextKeyIsRead)
{
    Store t;
    t.store.GetColours();
    t.settings.BTNColour = 4711;
    t.setIni("Colours", "BTNColour", "blue");
    t.setIni("Colours", "SlashColour", "255");
    t.store.GetColours();
    EXPECT_EQ(t.settings.BTNColour, 4711);
    EXPECT_EQ(t.settings.SlashColour, 255);
    EXPECT_EQ(t.errors.ErrorProcedure, "MODULE GetColours");
    EXPECT_EQ(t.errors.ErrorNumber, 13.0F);
}

TEST(GetOptions, ANumberBeyond16BitsKeepsTheEarlierValue)
{
    Store t;
    t.settings.AutoSaveTime = 7;
    t.setIni("Miscellaneous", "AutoSaveTime", "32768");
    t.store.GetOptions();
    EXPECT_EQ(t.settings.AutoSaveTime, 7);
    EXPECT_EQ(t.errors.ErrorNumber, 6.0F);
    t.setIni("Miscellaneous", "AutoSaveTime", "32767");
    t.store.GetOptions();
    EXPECT_EQ(t.settings.AutoSaveTime, 32767);
}

TEST(GetColours, OfTheFontSizeNineCharactersAreRead)
{
    Store t;
    for (const char* written : {"000000012", "0000000129"}) {
        t.setIni("Colours", "TextFontSize", written);
        t.store.GetColours();
        EXPECT_EQ(t.settings.TextFontSize, 12) << written;
    }
}

TEST(ColoursSortOut, SetsAndWritesTheFactoryValuesButNotInsertWithColour)
{
    Store t;
    t.store.ColoursSortOut();
    EXPECT_EQ(t.settings.BackgroundColour, 14285565);
    EXPECT_EQ(t.settings.RemStatements, 8421504);
    EXPECT_EQ(t.settings.TextFontSize, 8);
    EXPECT_EQ(t.settings.InsertWithColour, 1);
    EXPECT_EQ(t.ini("Colours", "MiscellaneousColour"), "12615680");
    EXPECT_EQ(t.ini("Colours", "TextFontName"), "Arial");
    EXPECT_EQ(t.ini("Colours", "ApplyColoursOnFileOpen"), "1");
    EXPECT_EQ(t.ini("Colours", "InsertWithColour"), "(none)");
}

TEST(SettingsStore, AFamilyIsReadByItsCountAndIndexedFromOne)
{
    Store t;
    t.setIni("Games", "GameArrayNum", "2");
    t.setIni("Games", "GameName1", "Lance");
    t.setIni("Games", "GameName2", "Kestrel");
    t.setIni("Games", "GameName3", "not counted");
    t.store.read(Access::GetGames, "MODULE GetGames");
    EXPECT_EQ(t.settings.GameName, (std::vector<SettingText>{"Lance", "Kestrel"}));
    EXPECT_EQ(t.settings.GameJF, (std::vector<SettingText>{"", ""}));
}

TEST(SettingsStore, ANegativeCountGivesNoEntries)
{
    Store t;
    t.setIni("Favourites", "FavArrayNum", "-3");
    t.store.read(Access::GetFavourites, "MODULE GetFavourites");
    EXPECT_TRUE(t.settings.FavName.empty());
}

TEST(SettingsStore, AFamilyIsWrittenWithItsIndices)
{
    Store t;
    t.store.read(Access::GetCustomApps, "MODULE GetCustomApps");
    ASSERT_EQ(t.settings.CustomAppName.size(), 4U);
    t.settings.CustomAppName[3] = "Mixer";
    t.settings.CustomAppUse[3] = 1;
    t.store.write(Access::SaveApps, "MODULE SaveApps");
    EXPECT_EQ(t.ini("Apps", "CustomAppName4"), "Mixer");
    EXPECT_EQ(t.ini("Apps", "CustomAppUse4"), "1");
}

TEST(SettingsStore, APlaceWithoutAKeyStaysWhereTheWindowIs)
{
    Store t;
    t.settings.SafeinTop = 1234.5F;
    t.store.read(Access::PositionSafein, "SAFEIN PositionSafein");
    EXPECT_EQ(t.settings.SafeinTop, 1234.5F);
    t.setIni("Miscellaneous", "SafeinTop", "300");
    t.store.read(Access::PositionSafein, "SAFEIN PositionSafein");
    EXPECT_EQ(t.settings.SafeinTop, 300.0F);
}

TEST(SettingsStore, OtherFilesHaveTheirOwnKeys)
{
    Store t;
    t.files.addFile("c:\\tarvex\\Layouts.ini", "[Joystick Layout]\r\nLOTextFont=Courier New\r\nLOTextFontSize=9\r\n");
    t.store.read(Access::GetLayoutFonts, "ED_Form_Load");
    EXPECT_EQ(t.settings.LOTextFont, "Courier New");
    EXPECT_EQ(t.settings.LOTextFontSize, 9);
    EXPECT_EQ(t.settings.LOTextFontBold, 0);
    t.store.read(Access::GetTcaOptions, "TCA Form_Load");
    EXPECT_EQ(t.settings.TCACentreSensitivity, 250);
    EXPECT_EQ(t.settings.TCAGridCellSize, 10);
}

TEST(SaveOptions, AReadOnlyFileLosesTheWriteInSilence)
{
    Store t;
    t.store.GetOptions();
    t.store.SaveOptions();
    t.files.setReadOnly(Store::iniPath);
    t.settings.UndoMax = 99;
    t.store.SaveOptions();
    EXPECT_EQ(t.ini("Miscellaneous", "UndoMax"), "10");
    EXPECT_EQ(t.errors.ErrorProcedure, "");
}

TEST(SettingsStore, KeepsWhatOthersWroteIntoTheFile)
{
    Store t;
    t.files.addFile(Store::iniPath, "; my notes\r\n[Miscellaneous]\r\nUndoMax=20\r\nColourOfMyHat=green\r\n");
    t.store.GetOptions();
    t.store.SaveOptions();
    const std::string text = t.fileText(Store::iniPath);
    EXPECT_EQ(text.find("; my notes\r\n[Miscellaneous]\r\nUndoMax=20\r\nColourOfMyHat=green\r\n"), 0U) << text;
}

TEST(GetOptions, ANegativeNumberOf16BitsIsTakenAndASmallerOneIsNot)
{
    Store t;
    t.setIni("Miscellaneous", "AutoSaveTime", "-32768");
    t.store.GetOptions();
    EXPECT_EQ(t.settings.AutoSaveTime, -32768);
    t.setIni("Miscellaneous", "AutoSaveTime", "-32769");
    t.settings.AutoSaveTime = 7;
    t.store.GetOptions();
    EXPECT_EQ(t.settings.AutoSaveTime, 7);
    EXPECT_EQ(t.errors.ErrorNumber, 6.0F);
    EXPECT_EQ(t.errors.ErrorDescription, "Overflow");
}

TEST(SaveOptions, AnEmptyKeyIsGivenItsNumberAlsoWhereThatIsNought)
{
    Store t;
    t.store.GetOptions();
    t.setIni("Miscellaneous", "CreateBackup", "");
    t.settings.CreateBackup = 0;
    t.store.SaveOptions();
    EXPECT_EQ(t.ini("Miscellaneous", "CreateBackup"), "0");
}

TEST(GetColours, ANumberWithZerosUpToFortyNineLettersIsRead)
{
    Store t;
    t.store.GetColours();
    t.setIni("Colours", "BTNColour", std::string(46, '0') + "255");
    t.setIni("Colours", "SlashColour", std::string(47, '0') + "255");
    t.store.GetColours();
    EXPECT_EQ(t.settings.BTNColour, 255);
    EXPECT_EQ(t.settings.SlashColour, 25) << "the fiftieth letter has no room";
}

TEST(SettingsStore, NumbersWithAPlaceForTheirSignAreWrittenWithIt)
{
    Store t;
    const auto written = [&t](const std::string& line) {
        return t.fileText(Store::iniPath).find("\r\n" + line + "\r\n") != std::string::npos;
    };
    t.settings.SafeinOnTop = 0;
    t.settings.SafeinViewModifiers = -1;
    t.settings.AddSafeinCR = 7;
    t.store.write(Access::SaveSafeinOptions, "SAFEIN SaveSafeinOptions");
    EXPECT_TRUE(written("SafeinOnTop= 0")) << t.fileText(Store::iniPath);
    EXPECT_TRUE(written("SafeinViewModifiers=-1"));
    EXPECT_TRUE(written("AddSafeinCR=7"));
}

TEST(SettingsStore, AFamilyThatIsReadAgainHasEachEntryOnce)
{
    Store t;
    t.setIni("Favourites", "FavArrayNum", "2");
    t.setIni("Favourites", "FavName2", "second");
    t.setIni("Apps", "CustomAppUse2", "1");
    t.setIni("Apps", "CustomAppUse4", "1");
    for (int i = 0; i < 2; ++i) {
        t.store.read(Access::GetFavourites, "MODULE GetFavourites");
        t.store.read(Access::GetCustomApps, "MODULE GetCustomApps");
    }
    EXPECT_EQ(t.settings.FavName, (std::vector<SettingText>{"", "second"}));
    EXPECT_EQ(t.settings.CustomAppUse, (std::vector<std::int16_t>{0, 1, 0, 1}));
}

TEST(SettingsStore, SaysWhichFilesCouldNotBeWrittenAndWhy)
{
    Store t;
    t.store.GetOptions();
    t.store.SaveOptions();
    EXPECT_TRUE(t.store.writeFailures().empty());
    t.files.failWrites(Store::iniPath, RuntimeError(ErrorCode::DiskFull, "Disk full"));
    t.settings.UndoMax = 99;
    t.store.SaveOptions();
    ASSERT_EQ(t.store.writeFailures().size(), 1U);
    EXPECT_EQ(t.store.writeFailures().front().path, Store::iniPath);
    EXPECT_EQ(t.store.writeFailures().front().reason, "Disk full");
}

TEST(SaveColourScheme, AFontSizeThatIsSpelledInItsOwnWayKeepsItsSpellingUntilItChanges)
{
    Store t;
    for (const char* spelled : {"012", "0000000129"}) {
        t.setIni("Colours", "TextFontSize", spelled);
        t.store.GetColours();
        t.store.write(Access::SaveColourScheme, "PREFS SaveColourScheme");
        EXPECT_EQ(t.ini("Colours", "TextFontSize"), spelled);
    }
    t.settings.TextFontSize = 13;
    t.store.write(Access::SaveColourScheme, "PREFS SaveColourScheme");
    EXPECT_EQ(t.ini("Colours", "TextFontSize"), "13");
}

} // namespace
} // namespace tarvex
