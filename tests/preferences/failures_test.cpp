// What a failure on a page of the preferences is reported under.

#include "platform/errors.h"
#include "preferences/extras_drives.h"
#include "preferences_fixture.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct PreferencesFailures : testing::Test, PreferencesProgram {
    static void fail() { throw RuntimeError(ErrorCode::DeviceInputOutput, "broken"); }

    /// What is reported last while the work runs in the preferences and the file dialogues fail.
    std::string reported(const std::function<void()>& work)
    {
        ErrorRecord& errors = program().shared.errors;
        errors.ErrorProcedure.clear();
        dialogues.whileOpening = fail;
        work();
        dialogues.whileOpening = nullptr;
        return std::exchange(errors.ErrorProcedure, "");
    }
};

TEST_F(PreferencesFailures, OfTheBrowseButtonsBelongToEachOfThem)
{
    inPreferences([this] {
        FileLocationsPage& locations = preferences().fileLocationsPage;
        AppsPage& apps = preferences().appsPage;
        ExtrasPage& extras = preferences().extrasPage;
        EXPECT_EQ(reported([&] { locations.Command1.Click(); }), "PREFS Command1_Click");
        EXPECT_EQ(reported([&] { locations.Text15Browse.Click(); }), "PREFS Text15Browse_Click");
        EXPECT_EQ(reported([&] { locations.Text10Browse.Click(); }), "PREFS Text10Browse_Click");
        EXPECT_EQ(reported([&] { apps.Text5Browse.Click(); }), "PREFS Text5Browse_Click");
        EXPECT_EQ(reported([&] { apps.Text6Browse.Click(); }), "PREFS Text6Browse_Click");
        EXPECT_EQ(reported([&] { apps.CustomAppPathBrowse[0].Click(); }), "PREFS CustomAppPathBrowse_Click");
        EXPECT_EQ(reported([&] { extras.Runners[0].Browse.Click(); }), "PREFS RunnerBrowse_Click");
        const auto listening = locations.Text2.Text.changed.connect(fail);
        dialogues.folders.emplace_back("c:\\elsewhere");
        EXPECT_EQ(reported([&] { locations.Command2.Click(); }), "PREFS Command2_Click");
    });
}

using BrowseButtons = PreferencesFailures;

TEST_F(BrowseButtons, AskForTheirFilesByTitleAndFilter)
{
    inPreferences([this] {
        const auto requested = [this](Button& button) {
            dialogues.filesToOpen.emplace_back(std::nullopt);
            button.Click();
            const FileRequest& request = dialogues.openRequests.back();
            return request.title + ": " + request.filter;
        };
        EXPECT_EQ(requested(preferences().appsPage.Text5Browse),
                  "Locate image file: Picture files|*.bmp;*.jpg;*.gif;*.wmf|All files (*.*)|*.*");
        EXPECT_EQ(requested(preferences().appsPage.Text6Browse),
                  "Locate text file: Text files|*.txt;*.rtf;*.ini;*.bat|All files (*.*)|*.*");
        EXPECT_EQ(requested(preferences().fileLocationsPage.Text15Browse),
                  "Locate Ned Marl's CTFJ: Executables (*.exe)|*.exe");
        EXPECT_EQ(requested(preferences().fileLocationsPage.Text10Browse),
                  ": Batch files (*.bat)|*.bat|Executables (*.exe)|*.exe|All files (*.*)|*.*");
        EXPECT_EQ(requested(preferences().extrasPage.Runners[0].Browse), "Locate Wine: All files (*.*)|*.*");
        dialogues.folders.emplace_back(std::nullopt);
        preferences().fileLocationsPage.Command2.Click();
        EXPECT_EQ(dialogues.folderRequests.back().title, "Select your Thrustmaster programs directory");
    });
}

TEST_F(BrowseButtons, BeginInTheFolderOfThePathThatIsThere)
{
    files.addDirectory("c:\\pictures");
    inPreferences([this] {
        AppsPage& apps = preferences().appsPage;
        apps.Text5.Text = "c:\\pictures\\stick.bmp";
        dialogues.filesToOpen = {std::nullopt, "c:\\pictures\\other.bmp"};
        apps.Text5Browse.Click();
        EXPECT_EQ(program().shared.currentDirectory.path(), "c:\\pictures");
        EXPECT_EQ(apps.Text5.Text.get(), "c:\\pictures\\stick.bmp") << "cancelled";
        apps.Text5Browse.Click();
        EXPECT_EQ(apps.Text5.Text.get(), "c:\\pictures\\other.bmp");
    });
}

TEST_F(PreferencesFailures, OfListsWithoutEntriesBelongToTheirButtons)
{
    inPreferences([this] {
        FavouritesPage& favourites = preferences().favouritesPage;
        GamesPage& games = preferences().gamesPage;
        EXPECT_EQ(reported([&] { favourites.Command13.Click(); }), "PREFS Command13_Click");
        EXPECT_EQ(program().shared.errors.ErrorDescription, "the list has no entries");
        EXPECT_EQ(reported([&] { favourites.Command14.Click(); }), "PREFS Command14_Click");
        favourites.LoadAppCheckBox.Value = true;
        EXPECT_EQ(reported([&] { favourites.LoadAppCheckBox.Click(); }), "PREFS LoadAppCheckBox_Click");
        EXPECT_EQ(reported([&] { games.Command12.Click(); }), "PREFS Command12_Click");
        EXPECT_EQ(reported([&] { favourites.List2.Click(); }), "PREFS List2_Click");
        EXPECT_EQ(reported([&] { games.List3.Click(); }), "PREFS List3_Click");
    });
}

TEST_F(PreferencesFailures, OfTheListsBelongToThem)
{
    inPreferences([this] {
        preferences().coloursPage.List1.ListIndex = 99;
        EXPECT_EQ(reported([&] { preferences().coloursPage.List1.Click(); }), "PREFS List1_Click");
        EXPECT_EQ(reported([&] { ApplyColour(preferences().coloursPage, 99, 0); }), "PREFS ApplyColour");
    });
}

TEST_F(PreferencesFailures, OfTheDrivesBelongToTheirButtons)
{
    inPreferences([this] {
        ExtrasPage& page = preferences().extrasPage;
        EXPECT_EQ(reported([&] { writeDriveFolder(page, 99, ""); }), "PREFS writeDriveFolder");
        writeDriveFolder(page, 0, "/home/pilot");
        page.DriveRow = 0;
        Connection listening = page.Drives.changed.connect(fail);
        EXPECT_EQ(reported([&] { page.DriveReset.Click(); }), "PREFS DriveReset_Click");
        dialogues.folders.emplace_back("z:\\mnt\\disk");
        EXPECT_EQ(reported([&] { page.DriveAdd.Click(); }), "PREFS DriveAdd_Click");
        dialogues.folders.emplace_back("z:\\home\\pilot");
        EXPECT_EQ(reported([&] { page.DriveBrowse.Click(); }), "PREFS DriveBrowse_Click");
        listening.disconnect();
    });
}

TEST_F(PreferencesFailures, OfTheMinutesBetweenSavesBelongToTheirBox)
{
    inPreferences([this] {
        SavingPage& page = preferences().savingPage;
        page.Text3.Text = "";
        const auto listening = page.Text3.Text.changed.connect(fail);
        EXPECT_EQ(reported([&] { page.Text3.LostFocus(); }), "PREFS Text3_LostFocus");
    });
}

TEST_F(PreferencesFailures, OfTheTestOfAProgramBelongToItsButton)
{
    machine.runners[Runner::Wine] = "/usr/bin/wine";
    inPreferences([this] {
        ExtrasPage& page = preferences().extrasPage;
        const auto listening = page.Runners[0].Answer.Caption.changed.connect(fail);
        EXPECT_EQ(reported([&] { page.Runners[0].Test.Click(); }), "PREFS RunnerTest_Click");
    });
}

TEST_F(PreferencesFailures, OfTheWinLoadOptionsBelongToTheirControls)
{
    inPreferences([this] {
        WinLoadPage& page = preferences().winLoadPage;
        const auto listening = page.WinLoadLabel.Caption.changed.connect(fail);
        EXPECT_EQ(reported([&] { page.WinLoadThrottle[0].Click(); }), "PREFS WinLoadThrottle_Click");
        page.OptionMouse[0].Click();
        page.MouseList[0].ListIndex = 1;
        EXPECT_EQ(reported([&] { page.MouseList[0].Click(); }), "PREFS MouseList_Click");
        EXPECT_EQ(reported([&] { page.OptionMouse[3].Click(); }), "PREFS OptionMouse_Click");
        page.CheckUseBlanker.Value = true;
        EXPECT_EQ(reported([&] { page.CheckUseBlanker.Click(); }), "PREFS CheckUseBlanker_Click");
        EXPECT_EQ(reported([&] { page.ExtraText.Text = "/XX"; }), "PREFS ExtraText_Change");
    });
}

TEST_F(PreferencesFailures, OfTheFontBelongToItsButton)
{
    inPreferences([this] {
        ColoursPage& page = preferences().coloursPage;
        dialogues.fonts.emplace_back(FontChoice{"Courier New", 10, false});
        const auto listening = page.ExampleJoystickText.selectionChanged.connect(fail);
        EXPECT_EQ(reported([&] { page.Command18.Click(); }), "PREFS Command18_Click");
    });
}

TEST_F(PreferencesFailures, OfTheUndoLevelsBelongToTheirButton)
{
    typeJoystick("a");
    inPreferences([this] {
        const auto listening = menus().mnuEditUndo.Caption.changed.connect(fail);
        EXPECT_EQ(reported([&] { preferences().savingPage.Command11.Click(); }), "PREFS Command11_Click");
    });
}

TEST_F(PreferencesFailures, OfTheHelpBelongToItsButton)
{
    program().operations.HelpTopic = [](int) { fail(); };
    inPreferences([this] { EXPECT_EQ(reported([&] { preferences().Command6.Click(); }), "PREFS Command6_Click"); });
}

TEST_F(PreferencesFailures, OfTheImportBelongToItsButtonAndItsSettings)
{
    files.addFile("d:\\old\\Tarvex.ini", "[Miscellaneous]\r\nNumberOfBlanks=99999\r\n");
    Preferences& dialogue = preferences();
    inPreferences([&] {
        const auto listening = dialogue.importForm.FolderLabel.Caption.changed.connect(fail);
        dialogues.folders.emplace_back("d:\\old");
        EXPECT_EQ(reported([&] { dialogue.extrasPage.Import.Click(); }), "PREFS Import_Click");
    });
    std::string tag;
    dialogues.whileModal = [&] {
        if (dialogues.modalForms.back() == "Import") return dialogue.importForm.ImportButton.Click();
        dialogues.folders.emplace_back("d:\\old");
        tag = reported([&] { dialogue.extrasPage.Import.Click(); });
        dialogue.Command3.Click();
    };
    menus().mnuPreferencesEdit.Click();
    dialogues.whileModal = nullptr;
    EXPECT_EQ(tag, "PREFS takeImported");
}

TEST_F(PreferencesFailures, OfSettingsPutIntoForceBelongToTheClosing)
{
    const auto listening = menus().mnuGames.Caption.changed.connect(fail);
    EXPECT_EQ(reported([&] {
                  inPreferences([this] { preferences().miscellaneousPage.ComboGamesCaption.Text = "&Flights"; });
              }),
              "PREFS Form_Unload");
}

TEST_F(PreferencesFailures, OfAnotherFontOnThePanesBelongToTheChange)
{
    typeJoystick("a");
    const auto listening = editor().JoystickText.selectionChanged.connect(fail);
    EXPECT_EQ(reported([&] { program().operations.DamnFontWasChanged(); }), "ED_DamnFontWasChanged");
}

TEST_F(PreferencesFailures, OfTheDialogueBelongToItsOpeningAndItsTabs)
{
    inPreferences([this] {
        FileLocationsPage& page = preferences().fileLocationsPage;
        Connection listening = page.Text1.focusWanted.connect(fail);
        preferences().SSTab1.Tab = 0;
        EXPECT_EQ(reported([&] { preferences().SSTab1.Click(); }), "PREFS SSTab1_Click");
        listening = page.Text2.Text.changed.connect(fail);
        settings().ProgramFilesPath = "c:\\elsewhere\\";
        EXPECT_EQ(reported([&] { PREFS_Form_Load(preferences()); }), "PREFS Form_Load");
        listening.disconnect();
    });
}

} // namespace
} // namespace tarvex
