// What the preferences show when they come up, whatever was chosen or set in them before.

#include "platform/machine_settings.h"
#include "preferences/extras_drives.h"
#include "preferences_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace tarvex {
namespace {

using testing::ElementsAre;

struct OpeningAgain : testing::Test, PreferencesProgram {
    OpeningAgain() : PreferencesProgram(false)
    {
        for (const char* number : {"1", "2"}) {
            setIni("Favourites", std::string("FavName") + number, std::string("fav") + number);
            setIni("Games", std::string("GameName") + number, std::string("game") + number);
        }
    }
    void startWith(int entries)
    {
        setIni("Favourites", "FavArrayNum", std::to_string(entries));
        setIni("Games", "GameArrayNum", std::to_string(entries));
        start();
    }
    FavouritesPage& favourites() { return preferences().favouritesPage; }
    GamesPage& games() { return preferences().gamesPage; }
    ExtrasPage& extras() { return preferences().extrasPage; }
    /// Whether the controls of the two pages can be used.
    std::vector<bool> enabled()
    {
        return {favourites().List2.Enabled,           favourites().Text7.Enabled,     favourites().Text8.Enabled,
                favourites().Text9.Enabled,           favourites().Command13.Enabled, favourites().Command14.Enabled,
                favourites().LoadAppCheckBox.Enabled, games().List3.Enabled,          games().Command12.Enabled};
    }
};

TEST_F(OpeningAgain, TheFirstEntryOfEachListIsChosen)
{
    startWith(2);
    inPreferences([this] {
        favourites().List2.ListIndex = 1;
        favourites().List2.Click();
        EXPECT_EQ(favourites().Text7.Text.get(), "fav2");
        games().List3.ListIndex = 1;
        games().List3.Click();
    });
    inPreferences([this] {
        EXPECT_EQ(favourites().List2.ListIndex, 0);
        EXPECT_EQ(favourites().Text7.Text.get(), "fav1");
        EXPECT_EQ(games().List3.ListIndex, 0);
    });
}

TEST_F(OpeningAgain, ListsWithoutEntriesAreGreyUntilThereIsOne)
{
    startWith(0);
    inPreferences([this] {
        EXPECT_THAT(enabled(), testing::Each(false));
        EXPECT_FALSE(favourites().LoadAppCheckBox.Value);
    });
    program().lists.favourites.current = {"mig", "c:\\mig.b50", "c:\\mig.m50"};
    UpdateFavouritesMenu(program().lists.favourites);
    program().lists.games.current.name = "f22";
    UpdateGamesMenu(program().lists.games);
    inPreferences([this] { EXPECT_THAT(enabled(), testing::Each(true)); });
}

TEST_F(OpeningAgain, NoDriveIsChosen)
{
    startWith(0);
    inPreferences([this] {
        extras().DriveRow = 0;
        EXPECT_TRUE(extras().DriveBrowse.Enabled);
    });
    inPreferences([this] {
        EXPECT_EQ(extras().DriveRow, -1);
        EXPECT_FALSE(extras().DriveBrowse.Enabled);
        EXPECT_FALSE(extras().DriveReset.Enabled);
    });
}

TEST_F(OpeningAgain, ADriveThatGoesLeavesTheLastRowChosen)
{
    machine.found = {{'c', "/home/pilot/tarvex/drive_c", DriveFolder::Origin::Tarvex}};
    startWith(0);
    inPreferences([this] {
        dialogues.folders.emplace_back("c:\\games");
        extras().DriveAdd.Click();
        ASSERT_EQ(extras().DriveRow, 1);
        extras().DriveReset.Click();
        EXPECT_EQ(extras().DriveRow, 0);
        EXPECT_TRUE(extras().DriveBrowse.Enabled);
        program().shared.errors.ErrorProcedure.clear();
        dialogues.folders.emplace_back(std::nullopt);
        extras().DriveAdd.Click();
        EXPECT_EQ(extras().DriveRow, 0) << "cancelled";
        EXPECT_EQ(program().shared.errors.ErrorProcedure, "");
        EXPECT_EQ(extras().Drives.get().size(), 1U);
    });
}

TEST_F(OpeningAgain, RunnersAreThoseOfTheFileAndTheAnswersOfTheirTestsAreGone)
{
    startWith(0);
    MachineSettings(program().shared.platformIni).setRunner(Runner::DosBox, "/opt/dosbox");
    inPreferences([this] {
        EXPECT_EQ(extras().Runners[1].Path.Text.get(), "/opt/dosbox");
        EXPECT_EQ(extras().Runners[0].Path.Text.get(), "");
        extras().Runners[0].Test.Click();
        EXPECT_FALSE(desktop.hourglass);
        EXPECT_NE(extras().Runners[0].Answer.Caption.get(), "");
    });
    inPreferences([this] { EXPECT_EQ(extras().Runners[0].Answer.Caption.get(), ""); });
}

TEST_F(OpeningAgain, TheHourglassIsThereWhileARunnerIsTested)
{
    machine.runners[Runner::Wine] = "/usr/bin/wine";
    std::vector<bool> hourglass;
    machine.whenAsked = [&](const std::string&) {
        hourglass.push_back(desktop.hourglass);
        return ProgramOutput{true, "wine-8.0"};
    };
    startWith(0);
    inPreferences([this] { extras().Runners[0].Test.Click(); });
    EXPECT_THAT(hourglass, ElementsAre(true));
    EXPECT_FALSE(desktop.hourglass);
}

TEST_F(OpeningAgain, ThePageOfWinLoadFollowsALoaderThatWasSetMeanwhile)
{
    startWith(0);
    settings().B50LoadPath = "c:\\tm\\winld.exe";
    inPreferences([this] { EXPECT_TRUE(preferences().SSTab1.Pages(Preferences::winLoad).Enabled); });
    settings().B50LoadPath = "c:\\tm\\b50load.exe";
    inPreferences([this] { EXPECT_FALSE(preferences().SSTab1.Pages(Preferences::winLoad).Enabled); });
}

TEST_F(OpeningAgain, FourCustomProgramsAreTakenAlsoWhereTheSettingsHaveFewer)
{
    startWith(0);
    settings().CustomAppName = {"one"};
    settings().CustomAppPath.clear();
    settings().CustomAppUse.clear();
    inPreferences([this] {
        AppsPage& page = preferences().appsPage;
        EXPECT_EQ(page.CustomAppNameText[0].Text.get(), "one");
        EXPECT_EQ(page.CustomAppNameText[1].Text.get(), "");
        EXPECT_FALSE(page.CustomAppPathUse[1].Value);
        page.CustomAppNameText[3].Text = "four";
        page.CustomAppPathText[3].Text = "C:\\Four.exe";
        page.CustomAppPathUse[3].Value = true;
    });
    EXPECT_THAT(settings().CustomAppName, ElementsAre("one", "", "", "four"));
    EXPECT_THAT(settings().CustomAppPath, ElementsAre("", "", "", "c:\\four.exe"));
    EXPECT_THAT(settings().CustomAppUse, ElementsAre(0, 0, 0, 1));
}

TEST_F(OpeningAgain, TheFolderOfTheFilesIsLookedForFromTheRootOfItsDrive)
{
    files.addDirectory("d:\\games");
    startWith(0);
    program().shared.currentDirectory.ChDir("d:\\games");
    inPreferences([this] {
        preferences().fileLocationsPage.Text2.Text = "D:\\Games";
        dialogues.folders.emplace_back(std::nullopt);
        preferences().fileLocationsPage.Command2.Click();
        EXPECT_EQ(program().shared.currentDirectory.path(), "d:\\");
        EXPECT_EQ(dialogues.folderRequests.back().directory, "D:\\Games");
        EXPECT_EQ(preferences().fileLocationsPage.Text2.Text.get(), "D:\\Games") << "cancelled";
    });
}

TEST_F(OpeningAgain, AFolderOfTheSettingsThatCannotBeShownIsSaid)
{
    startWith(0);
    machine.hasFileManager = false;
    inPreferences([this] {
        dialogues.boxes.clear();
        extras().OpenFolder.Click();
        EXPECT_EQ(lastBox().text, "I couldn't open a window on " + extras().SettingsFolder.Text.get() + ".");
    });
}

TEST_F(OpeningAgain, ThePictureOptionIsThatOfTheSettings)
{
    startWith(0);
    const auto marked = [this] {
        std::vector<bool> values;
        for (const OptionButton& option : preferences().miscellaneousPage.OptionImagesToShow)
            values.push_back(option.Value);
        return values;
    };
    for (const int image : {2, 1, 0}) {
        settings().ComposerImages = static_cast<std::int16_t>(image);
        inPreferences([&] {
            EXPECT_THAT(marked(), ElementsAre(image == 0, image == 1, image == 2));
            preferences().miscellaneousPage.OptionImagesToShow[1].Click();
            EXPECT_THAT(marked(), ElementsAre(false, true, false));
        });
    }
}

TEST_F(OpeningAgain, TheFirstBoxOfThePageHasTheKeyboard)
{
    startWith(0);
    inPreferences([this] { preferences().SSTab1.Tab = Preferences::fileLocations; });
    int focused = 0;
    const auto listening = preferences().fileLocationsPage.Text1.focusWanted.connect([&] { ++focused; });
    inPreferences([] {});
    EXPECT_GE(focused, 1);
}

TEST_F(OpeningAgain, OkClosesTheDialogue)
{
    startWith(0);
    inPreferences([this] { preferences().Form.Visible = true; });
    EXPECT_FALSE(preferences().Form.Visible);
}

TEST_F(OpeningAgain, AGameThatIsRenamedOrRemovedIsSoInTheListAtOnce)
{
    startWith(2);
    inPreferences([this] {
        games().Text12.Text = "other";
        EXPECT_THAT(games().List3.Items.get(), ElementsAre("other", "game2"));
        games().Command12.Click();
        EXPECT_THAT(games().List3.Items.get(), ElementsAre("game2"));
        EXPECT_EQ(games().Text12.Text.get(), "game2");
        EXPECT_TRUE(games().Command12.Enabled);
        games().Command12.Click();
        EXPECT_FALSE(games().Command12.Enabled);
    });
}

TEST_F(OpeningAgain, TheDelayKeepsAllItsDigits)
{
    startWith(0);
    inPreferences([this] {
        preferences().miscellaneousPage.DLYText.Text = "x1/09:9";
        EXPECT_EQ(preferences().miscellaneousPage.DLYText.Text.get(), "1099");
        EXPECT_EQ(settings().DefaultDLYvalue, 1099);
    });
}

TEST_F(OpeningAgain, WithAggressiveFocusTheComposerIsOnTop)
{
    startWith(0);
    settings().CompOnTop = 0;
    inPreferences([this] { preferences().miscellaneousPage.CheckAggressiveFocus.Value = true; });
    EXPECT_EQ(settings().CompOnTop, 1);
    settings().CompOnTop = 0;
    inPreferences([this] { preferences().miscellaneousPage.CheckAggressiveFocus.Value = false; });
    EXPECT_EQ(settings().CompOnTop, 0);
}

TEST_F(OpeningAgain, WhatTheFileOfTheMachineDidNotTakeIsShownAndTriedAgain)
{
    startWith(0);
    files.failWrites("c:\\tarvex\\Platform.ini", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    inPreferences([this] {
        extras().Ticks[1].Value = true;
        extras().Runners[0].Path.Text = "/opt/wine";
        writeDriveFolder(extras(), 0, "/home/pilot");
    });
    EXPECT_EQ(lastBox().title, "Ooops!");
    const auto showsIt = [this] {
        EXPECT_TRUE(extras().Ticks[1].Value);
        EXPECT_EQ(extras().Runners[0].Path.Text.get(), "/opt/wine");
        EXPECT_EQ(extras().Drives.get().at(0).folder, "/home/pilot");
    };
    inPreferences(showsIt);
    files.failWrites("c:\\tarvex\\Platform.ini", std::nullopt);
    inPreferences(showsIt);
    EXPECT_EQ(MachineSettings(program().shared.platformIni).runner(Runner::Wine), "/opt/wine");
}

TEST_F(OpeningAgain, TheTickOfTheTipsIsInForceInBothPanesAtOnce)
{
    startWith(0);
    int updates = 0;
    program().operations.UpdateEditorTooltips = [&updates] { ++updates; };
    inPreferences([this, &updates] {
        updates = 0;
        preferences().miscellaneousPage.CheckShowTooltips.Click();
        EXPECT_EQ(updates, 1);
    });
}

} // namespace
} // namespace tarvex
