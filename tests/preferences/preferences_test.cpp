#include "preferences_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

struct PreferencesTest : testing::Test, PreferencesProgram {};

// ---- opening and pages
// --------------------------------------------------------------------------------------------------

TEST_F(PreferencesTest, CommandsLeadToTheirPages)
{
    const std::pair<MenuItem*, int> commands[] = {{&menus().mnuPreferencesEdit, Preferences::fileLocations},
                                                  {&menus().mnuViewEditColours, Preferences::colours},
                                                  {&menus().mnuAppsEdit, Preferences::apps},
                                                  {&menus().mnuFavsEdit, Preferences::favourites},
                                                  {&menus().mnuGamesEdit, Preferences::games},
                                                  {&menus().mnuPreferencesEdit, Preferences::fileLocations}};
    for (const auto& [item, page] : commands) {
        int shown = -1;
        dialogues.whileModal = [&] { shown = preferences().SSTab1.Tab; };
        EXPECT_TRUE(item->Enabled) << item->Name;
        item->Click();
        EXPECT_EQ(shown, page) << item->Name;
    }
    EXPECT_THAT(dialogues.modalForms, testing::Each("Preferences"));
}

TEST_F(PreferencesTest, APageGivesTheKeyboardToItsFirstBox)
{
    inPreferences([this] {
        const std::pair<int, Focusable*> boxes[] = {
            {Preferences::fileLocations, &preferences().fileLocationsPage.Text1},
            {Preferences::favourites, &preferences().favouritesPage.Text7},
            {Preferences::apps, &preferences().appsPage.Text5},
            {Preferences::saving, &preferences().savingPage.Text3},
            {Preferences::games, &preferences().gamesPage.Text12}};
        for (const auto& [page, box] : boxes) {
            int focused = 0;
            const Connection wanted = box->focusWanted.connect([&] { ++focused; });
            preferences().SSTab1.Tab = page;
            preferences().SSTab1.Click();
            EXPECT_EQ(focused, 1) << page;
        }
    });
}

TEST_F(PreferencesTest, FirstUseLeadsToThemAndIsOverWhenTheyClose)
{
    setIni("FileLocations", "FirstTimeUsed", "1");
    int opened = 0;
    dialogues.whileModal = [&] { ++opened; };
    start();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(ini("FileLocations", "FirstTimeUsed"), "0");
    start();
    EXPECT_EQ(opened, 1);
}

TEST_F(PreferencesTest, AFileOfAnUnknownKindLeadsToTheFilledPagesAndWhatIsSetThereIsKept)
{
    files.addFile("c:\\notes.txt", "x");
    dialogues.filesToOpen = {"c:\\notes.txt"};
    FileLocationsPage& page = preferences().fileLocationsPage;
    std::string shown;
    dialogues.whileModal = [&] {
        shown = page.Text2.Text;
        page.Text2.Text = "C:\\TM\\Mine\\";
        page.ComboJoystick.Text = "FCS";
        page.ComboJoystick.Click();
    };
    const std::string before = settings().ProgramFilesPath;
    ASSERT_FALSE(before.empty());
    menus().mnuFileOpen.Click();
    EXPECT_EQ(shown, before);
    EXPECT_EQ(ini("FileLocations", "ProgramFilesPath"), "c:\\tm\\mine\\");
    EXPECT_EQ(editor().joystick.FileName, "untitled.adv");
    EXPECT_EQ(status(), "Files not opened");
}

// ---- what closing does
// --------------------------------------------------------------------------------------------------

TEST_F(PreferencesTest, AllPathsAreInLowerCaseAfterTheDialogueCloses)
{
    inPreferences([this] {
        preferences().fileLocationsPage.Text1.Text = "C:\\TM\\B50Load.exe";
        preferences().fileLocationsPage.Text2.Text = "C:\\TM\\B50Progs";
        preferences().fileLocationsPage.Text15.Text = "C:\\TM\\CTFJ.exe";
        preferences().fileLocationsPage.Text10.Text = "C:\\TM\\TM.bat";
        preferences().appsPage.Text5.Text = "C:\\Pictures\\Stick.bmp";
        preferences().appsPage.Text6.Text = "C:\\Texts\\Notes.txt";
        preferences().appsPage.CustomAppPathText[1].Text = "C:\\Tools\\Tool.exe";
        preferences().appsPage.CustomAppNameText[1].Text = "My Tool";
    });
    EXPECT_EQ(ini("FileLocations", "B50LoadPath"), "c:\\tm\\b50load.exe");
    EXPECT_EQ(ini("FileLocations", "ProgramFilesPath"), "c:\\tm\\b50progs");
    EXPECT_EQ(ini("FileLocations", "CTFJPath"), "c:\\tm\\ctfj.exe");
    EXPECT_EQ(ini("FileLocations", "CandCCPath"), "c:\\tm\\tm.bat");
    EXPECT_EQ(ini("Apps", "ImageFilePath"), "c:\\pictures\\stick.bmp");
    EXPECT_EQ(ini("Apps", "TextFilePath"), "c:\\texts\\notes.txt");
    EXPECT_EQ(ini("Apps", "CustomAppPath2"), "c:\\tools\\tool.exe");
    EXPECT_EQ(ini("Apps", "CustomAppName2"), "My Tool");
    EXPECT_EQ(ini("Launcher", "FilesDirectory"), "c:\\tm\\b50progs");
}

TEST_F(PreferencesTest, ClosingByTheFrameSavesToo)
{
    dialogues.whileModal = [this] {
        preferences().miscellaneousPage.CheckMinimiseAll.Value = true;
        preferences().Form.Close();
    };
    menus().mnuPreferencesEdit.Click();
    EXPECT_EQ(ini("Miscellaneous", "MinimiseAll"), "1");
}

TEST_F(PreferencesTest, AnotherJoystickRenamesUntitledFilesOnce)
{
    menus().mnuFileNewBoth.Click();
    inPreferences([this] {
        ComboBox& combo = preferences().fileLocationsPage.ComboJoystick;
        EXPECT_EQ(combo.Text.get(), "F16 FLCS");
        combo.Text = "FCS";
        combo.Click();
        EXPECT_EQ(program().shared.HardwareChangedMark, 1);
    });
    EXPECT_EQ(program().shared.HardwareChangedMark, 0);
    EXPECT_EQ(editor().joystick.FileName, "untitled.adv");
    EXPECT_EQ(editor().macro.FileName, "untitled.mdf");
    EXPECT_EQ(ini("FileLocations", "JoyName"), "4");
}

TEST(PreferencesAtFirstUse, TheJoystickThatIsShownDecidesTheExtensionsWhenItIsLeftAsItIs)
{
    PreferencesProgram t(false);
    t.setIni("FileLocations", "FirstTimeUsed", "1");
    t.setIni("FileLocations", "JoyName", "0");
    t.dialogues.whileModal = [&t] {
        if (t.dialogues.modalForms.back() != "Preferences") return;
        EXPECT_EQ(t.preferences().fileLocationsPage.ComboJoystick.Text.get(), "F22 Pro");
        t.preferences().Command3.Click();
    };
    t.start();
    EXPECT_EQ(t.ini("FileLocations", "JoystickExtension"), "f22");
    EXPECT_EQ(t.ini("FileLocations", "MacroExtension"), "m22");
    EXPECT_EQ(t.editor().joystick.FileName, "untitled.f22");
    EXPECT_EQ(t.editor().macro.FileName, "untitled.m22");
}

TEST_F(PreferencesTest, ExtensionsSetByHandStayWhileTheJoystickStays)
{
    settings().JoystickExtension = "f22";
    inPreferences([] {});
    EXPECT_EQ(ini("FileLocations", "JoystickExtension"), "f22");
}

TEST_F(PreferencesTest, AnUntitledFileIsSavedAutomaticallyInTheFolderThatWasJustSet)
{
    files.addFile("c:\\games\\readme.txt", "");
    typeJoystick("mine");
    inPreferences([this] {
        preferences().fileLocationsPage.Text2.Text = "C:\\Games\\";
        preferences().savingPage.Text3.Text = "1";
    });
    editor().Timer1.Tick();
    EXPECT_EQ(fileText("c:\\games\\untitled.b50"), "mine");
    EXPECT_EQ(editor().macro.FilePath, "c:\\games\\untitled.m50");

    inPreferences([this] { preferences().fileLocationsPage.Text2.Text = "c:\\elsewhere\\"; });
    EXPECT_EQ(editor().joystick.FilePath, "c:\\games\\untitled.b50") << "it is saved there";
    EXPECT_EQ(editor().macro.FilePath, "c:\\elsewhere\\untitled.m50");
}

TEST_F(PreferencesTest, ThrottleAndRuddersAreKeptByTheirPlaceInTheList)
{
    inPreferences([this] {
        preferences().fileLocationsPage.ComboThrottle.Text = "WCS MkII";
        preferences().fileLocationsPage.ComboThrottle.Click();
        preferences().fileLocationsPage.ComboRudders.Text = "RCS";
        preferences().fileLocationsPage.ComboRudders.Click();
    });
    EXPECT_EQ(ini("FileLocations", "ThrottleName"), "2");
    EXPECT_EQ(ini("FileLocations", "RudderName"), "2");
}

TEST_F(PreferencesTest, ControllersOfNoKnownNumberAreNotNamed)
{
    FileLocationsPage& page = preferences().fileLocationsPage;
    const auto shown = [&](std::int16_t stick, std::int16_t throttle, std::int16_t rudders) {
        settings().JoyName = stick;
        settings().ThrottleName = throttle;
        settings().RudderName = rudders;
        std::string names;
        inPreferences([&] {
            for (const ComboBox* combo : {&page.ComboJoystick, &page.ComboThrottle, &page.ComboRudders})
                names += combo->Text.get() + ';';
        });
        return names;
    };
    EXPECT_EQ(shown(0, 0, 0), "F22 Pro;None;None;");
    EXPECT_EQ(shown(4, 3, 2), "FCS;WCS;RCS;");
    EXPECT_EQ(shown(5, 4, 3), ";;;");
    EXPECT_EQ(shown(-1, -1, -1), ";;;");
}

TEST_F(PreferencesTest, WithoutGamesAWrittenBoxChangesNothing)
{
    inPreferences([this] {
        GamesPage& page = preferences().gamesPage;
        ASSERT_TRUE(page.List3.Items.get().empty());
        page.Text12.Text = "lance";
        EXPECT_TRUE(page.List3.Items.get().empty());
    });
    EXPECT_NE(program().shared.errors.ErrorProcedure, "PREFS GameText_Change");
}

TEST_F(PreferencesTest, AnEmptyGamesCaptionBecomesGames)
{
    inPreferences([this] { preferences().miscellaneousPage.ComboGamesCaption.Text = "Eat thi&s!"; });
    EXPECT_EQ(menus().mnuGames.Caption.get(), "Eat thi&s!");
    inPreferences([this] { preferences().miscellaneousPage.ComboGamesCaption.Text = ""; });
    EXPECT_EQ(menus().mnuGames.Caption.get(), "&Games");
    EXPECT_EQ(ini("FileLocations", "GamesCaption"), "&Games");
}

TEST_F(PreferencesTest, TheSoundCanOnlyBeChosenWhenThereIsOne)
{
    setIni("Miscellaneous", "PlayWavOnStartup", "1");
    start();
    inPreferences([this] {
        EXPECT_FALSE(preferences().miscellaneousPage.WavPlay.Enabled);
        EXPECT_FALSE(preferences().miscellaneousPage.WavPlay.Value);
    });
    EXPECT_EQ(ini("Miscellaneous", "PlayWavOnStartup"), "1") << "a choice that wasn't offered stays";
    files.write("c:\\tarvex\\tarvexbig.wav", "RIFF");
    start();
    inPreferences([this] {
        EXPECT_TRUE(preferences().miscellaneousPage.WavPlay.Enabled);
        preferences().miscellaneousPage.WavPlay.Value = false;
    });
    EXPECT_EQ(ini("Miscellaneous", "PlayWavOnStartup"), "0");
}

TEST_F(PreferencesTest, ToolbarTipsAndCalibrationFollowAtOnce)
{
    inPreferences([this] {
        MiscellaneousPage& page = preferences().miscellaneousPage;
        page.CheckFlattenToolbar[0].Value = false;
        page.CheckFlattenToolbar[1].Value = true;
        page.CheckFlattenToolbar[2].Value = true;
        page.CheckDisableCalibrate.Value = true;
        page.CheckShowTooltips.Value = false;
        page.CheckShowTooltips.Click();
        preferences().savingPage.SaveBothChk.Value = true;
    });
    Mum& mum = program().mum;
    EXPECT_FALSE(mum.Toolbar1.Flat);
    EXPECT_TRUE(mum.Toolbar1.Wrappable);
    EXPECT_TRUE(mum.Gradient);
    EXPECT_FALSE(menus().mnuAppsProPanel.Visible);
    EXPECT_FALSE(mum.Toolbar1.Buttons(37).Visible);
    EXPECT_EQ(mum.Toolbar1.Buttons(1).ToolTipText.get(), "");
    EXPECT_EQ(settings().SaveBothOnToolbar, 1);
}

TEST_F(PreferencesTest, TheTipsOfUndoAndRedoStillCountTheLevelsAfterwards)
{
    typeJoystick("a");
    inPreferences([] {});
    ToolBar& bar = program().mum.Toolbar1;
    EXPECT_EQ(bar.Buttons(11).ToolTipText.get(), "Undo (1)");
    EXPECT_EQ(bar.Buttons(12).ToolTipText.get(), "Redo");
    inPreferences([this] {
        preferences().miscellaneousPage.CheckShowTooltips.Value = false;
        preferences().miscellaneousPage.CheckShowTooltips.Click();
    });
    EXPECT_EQ(bar.Buttons(11).ToolTipText.get(), "");
    EXPECT_EQ(bar.Buttons(12).ToolTipText.get(), "");
}

TEST_F(PreferencesTest, TheCalibrationButtonStaysHiddenAmongTheExtraButtonsAndShownWithoutThem)
{
    const auto close = [this](bool extra, bool hidden) {
        inPreferences([&] {
            preferences().miscellaneousPage.CheckExtraToolbar.Value = extra;
            preferences().miscellaneousPage.CheckDisableCalibrate.Value = hidden;
        });
    };
    ToolBar& bar = program().mum.Toolbar1;
    close(true, true);
    EXPECT_TRUE(bar.Buttons(36).Visible);
    EXPECT_FALSE(bar.Buttons(37).Visible);
    close(false, false);
    EXPECT_FALSE(bar.Buttons(36).Visible);
    EXPECT_TRUE(bar.Buttons(37).Visible) << "as after a start";
}

TEST_F(PreferencesTest, TheDelayTakesWholeNumbersOnly)
{
    inPreferences([this] {
        TextBox& box = preferences().miscellaneousPage.DLYText;
        EXPECT_EQ(box.Text.get(), "60");
        box.Text = "8x0";
        EXPECT_EQ(box.Text.get(), "80");
        EXPECT_EQ(settings().DefaultDLYvalue, 80);
        box.Text = "";
        box.Text = "99999";
        EXPECT_EQ(settings().DefaultDLYvalue, 80) << "16 bits are all that it has";
    });
    EXPECT_EQ(ini("Miscellaneous", "DefaultDLYvalue"), "80");
}

TEST_F(PreferencesTest, EachIniFileIsWrittenOnceAtMost)
{
    inPreferences([this] {
        preferences().fileLocationsPage.Text2.Text = "c:\\other";
        preferences().fileLocationsPage.Text1.Text = "c:\\tm\\winld.exe";
        files.clearWrites();
    });
    EXPECT_LE(files.writes().size(), 2U);
}

// ---- lists
// --------------------------------------------------------------------------------------------------------------

struct PreferencesLists : PreferencesTest {
    PreferencesLists()
    {
        setIni("Favourites", "FavArrayNum", "2");
        for (const char* number : {"1", "2"}) {
            setIni("Favourites", std::string("FavName") + number, std::string("fav") + number);
            setIni("Favourites", std::string("FavJFPath") + number, std::string("c:\\f") + number + ".b50");
            setIni("Favourites", std::string("FavMFPath") + number, std::string("c:\\f") + number + ".m50");
            setIni("Games", std::string("GameName") + number, std::string("game") + number);
            setIni("Games", std::string("GamePath") + number, std::string("d:\\g") + number + ".exe +Fast");
        }
        setIni("Games", "GameArrayNum", "2");
        start();
    }
    FavouritesPage& favourites() { return preferences().favouritesPage; }
    GamesPage& games() { return preferences().gamesPage; }
};

TEST_F(PreferencesLists, AListPageShowsItsEntriesAnewWhenItIsEntered)
{
    const auto enter = [this](int page) {
        preferences().SSTab1.Tab = page;
        preferences().SSTab1.Click();
    };
    inPreferences([&] {
        favourites().Text7.Text = "not applied";
        settings().GameName[0] = "renamed";
        enter(Preferences::saving);
        EXPECT_EQ(favourites().Text7.Text.get(), "not applied") << "another page";
        EXPECT_EQ(games().Text12.Text.get(), "game1");
        enter(Preferences::favourites);
        EXPECT_EQ(favourites().Text7.Text.get(), "fav1");
        EXPECT_EQ(games().Text12.Text.get(), "game1");
        enter(Preferences::games);
        EXPECT_EQ(games().Text12.Text.get(), "renamed");
        favourites().List2.Items = std::vector<std::string>();
        games().List3.Items = std::vector<std::string>();
        enter(Preferences::favourites);
        EXPECT_FALSE(favourites().Text7.Enabled);
        EXPECT_EQ(favourites().Text7.Text.get(), "");
        EXPECT_TRUE(games().Text12.Enabled);
        enter(Preferences::games);
        EXPECT_FALSE(games().Text12.Enabled);
        EXPECT_EQ(games().Text12.Text.get(), "");
    });
}

TEST_F(PreferencesLists, ApplyTakesTheBoxesIntoTheChosenFavourite)
{
    inPreferences([this] {
        favourites().List2.ListIndex = 1;
        favourites().List2.Click();
        EXPECT_EQ(favourites().Text7.Text.get(), "fav2");
        favourites().Text7.Text = "Night";
        favourites().Text8.Text = "C:\\Night.B50";
        favourites().Command14.Click();
        EXPECT_THAT(favourites().List2.Items.get(), ElementsAre("fav1", "Night"));
    });
    EXPECT_EQ(menus().mnuFavArray[2].Caption.get(), "Night");
    EXPECT_EQ(ini("Favourites", "FavName2"), "Night");
    EXPECT_EQ(ini("Favourites", "FavJFPath2"), "c:\\night.b50");
}

TEST_F(PreferencesLists, BoxesThatWereNotAppliedChangeNothing)
{
    inPreferences([this] { favourites().Text7.Text = "Nobody"; });
    EXPECT_EQ(ini("Favourites", "FavName1"), "fav1");
}

TEST_F(PreferencesLists, ARemovedFavouriteIsGoneFromMenuAndFile)
{
    inPreferences([this] {
        favourites().Command13.Click();
        EXPECT_EQ(favourites().Text7.Text.get(), "fav2");
        favourites().Command13.Click();
        EXPECT_FALSE(favourites().Text7.Enabled);
        EXPECT_FALSE(favourites().Command13.Enabled);
    });
    EXPECT_EQ(ini("Favourites", "FavArrayNum"), "0");
    EXPECT_EQ(menus().mnuFavArray.UBound(), 0);
}

TEST_F(PreferencesLists, ARemovedEntryIsGoneFromTheMenuAtOnce)
{
    inPreferences([this] {
        favourites().Command13.Click();
        games().Command12.Click();
        EXPECT_EQ(menus().mnuFavArray.UBound(), 1);
        EXPECT_EQ(menus().mnuGameArray.UBound(), 1);
    });
}

TEST_F(PreferencesLists, TheTickMarksTheFavouriteThatIsOpenedAtStart)
{
    inPreferences([this] {
        favourites().LoadAppCheckBox.Value = true;
        favourites().LoadAppCheckBox.Click();
        favourites().List2.ListIndex = 1;
        favourites().List2.Click();
        EXPECT_FALSE(favourites().LoadAppCheckBox.Value) << "it is the other one";
    });
    EXPECT_EQ(ini("Favourites", "FavLoadOnStart"), "1");
    EXPECT_EQ(ini("Favourites", "FavNameToLoad"), "fav1");
}

TEST_F(PreferencesLists, WhatIsWrittenAboutAGameBelongsToItAtOnce)
{
    inPreferences([this] {
        games().List3.ListIndex = 1;
        games().List3.Click();
        EXPECT_EQ(games().Text11.Text.get(), "d:\\g2.exe +Fast");
        games().Text12.Text = "Falcon";
        games().Text13.Text = "C:\\F.B50";
        EXPECT_THAT(games().List3.Items.get(), ElementsAre("game1", "Falcon"));
        games().List3.ListIndex = 0;
        games().List3.Click();
        EXPECT_EQ(games().Text12.Text.get(), "game1") << "showing another game writes nothing";
    });
    EXPECT_EQ(menus().mnuGameArray[2].Caption.get(), "Falcon");
    EXPECT_EQ(ini("Games", "GameName2"), "Falcon");
    EXPECT_EQ(ini("Games", "GameJF2"), "C:\\F.B50");
    EXPECT_EQ(ini("Games", "GamePath2"), "d:\\g2.exe +Fast") << "switches keep their case";
}

TEST_F(PreferencesLists, TheLastGameRemovedGreysThePage)
{
    inPreferences([this] {
        games().Command12.Click();
        games().Command12.Click();
        EXPECT_FALSE(games().Text12.Enabled);
        EXPECT_EQ(games().Text12.Text.get(), "");
    });
    EXPECT_EQ(ini("Games", "GameArrayNum"), "0");
    EXPECT_EQ(menus().mnuGameArray.UBound(), 0);
}

TEST_F(PreferencesTest, TheControlCentreCountsAsSoonAsItIsWritten)
{
    inPreferences([this] {
        preferences().fileLocationsPage.Text10.Text = "c:\\tm\\tm.bat";
        EXPECT_EQ(settings().CandCCPath, "c:\\tm\\tm.bat");
    });
}

} // namespace
} // namespace tarvex
