#include "preferences/import_form.h"

#include "preferences/importing.h"
#include "preferences_fixture.h"
#include "shell/toolbar_buttons.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// An old installation on drive d:, and a user who imports it from the page "Extras".
struct ImportTest : testing::Test, PreferencesProgram {
    static constexpr const char* old = "d:\\Program Files\\Tarvex";

    ImportTest()
    {
        files.addDirectory("d:");
        files.addFile(std::string(old) + "\\Tarvex.ini",
                      "[FileLocations]\r\nProgramFilesPath=c:\\tm\\b50progs\r\nJoyName=4\r\nJoystickExtension="
                      "adv\r\nMacroExtension=mdf\r\nB50LoadPath=c:\\old.exe\r\n"
                      "[Colours]\r\nRAWColour=255\r\nTextFontName=Old Font\r\n[Odd]\r\nKept=yes\r\n"
                      "[Favourites]\r\nFavArrayNum=1\r\nFavName1=Old flight\r\n"
                      "[Miscellaneous]\r\nUndoMax=77\r\nNumberOfBlanks=9\r\n");
        files.addFile(std::string(old) + "\\Lists.ini", "[Loaders]\r\nNumPreviousLoaders=1\r\nLoader1=c:\\old.exe\r\n");
        files.addFile(std::string(old) + "\\Templates\\Hat.rtf", "{\\rtf1 hat}");
        files.addFile(std::string(old) + "\\Templates\\Notes.TXT", "notes");
        files.addFile(std::string(old) + "\\Templates\\program.exe", "MZ");
        files.addFile(std::string(old) + "\\Backup\\f22.b50.bak", "BTN S1 a");
        files.addDirectory("c:\\tm\\b50progs");
    }
    ImportForm& form() { return preferences().importForm; }
    /// Chooses a folder, lets the user act in the dialogue that shows what was found, and ends it by `end`.
    void importFrom(const std::string& folder, const std::function<void()>& act,
                    Button ImportForm::*end = &ImportForm::ImportButton)
    {
        dialogues.whileModal = [&, this] {
            if (dialogues.modalForms.back() == "Import") {
                act();
                return (form().*end).Click();
            }
            dialogues.folders.emplace_back(folder);
            preferences().extrasPage.Import.Click();
            preferences().Command3.Click();
        };
        menus().mnuPreferencesEdit.Click();
        dialogues.whileModal = nullptr;
    }
    std::string caption(ImportPart part) { return form().Parts[static_cast<std::size_t>(part)].Caption; }
    void tickOnly(ImportPart part)
    {
        for (std::size_t i = 0; i < importParts; ++i) form().Parts[i].Value = i == static_cast<std::size_t>(part);
    }
};

TEST_F(ImportTest, ShowsWhatItFoundBelowTheChosenFolder)
{
    importFrom("d:\\", [this] {
        EXPECT_EQ(form().FolderLabel.Caption.get(), "d:\\Program Files\\Tarvex");
        EXPECT_EQ(caption(ImportPart::Settings), "&Settings (1 file, 1 KB)");
        EXPECT_EQ(caption(ImportPart::Lists), "&Lists of loaders (1 file, 1 KB)");
        EXPECT_EQ(caption(ImportPart::Templates), "&Templates (2 files, 1 KB)");
        EXPECT_EQ(caption(ImportPart::Backups), "&Backups (1 file, 1 KB)");
        for (const CheckBox& part : form().Parts) EXPECT_TRUE(part.Value && part.Enabled);
        EXPECT_EQ(form().LeftOut.Caption.get(), "");
    });
    EXPECT_EQ(dialogues.modalForms.back(), "Import");
}

TEST_F(ImportTest, SettingsAreInMemoryOnThePagesAndInTheFiles)
{
    importFrom(old, [] {});
    EXPECT_EQ(settings().UndoMax, 77);
    EXPECT_EQ(settings().NumberOfBlanks, 9) << "of a tool that read its own before";
    EXPECT_EQ(settings().B50LoadPath, "c:\\old.exe");
    EXPECT_EQ(ini("Miscellaneous", "UndoMax"), "77") << "closing the preferences keeps it";
    EXPECT_EQ(ini("Odd", "Kept"), "yes");
    EXPECT_EQ(ini("FileLocations", "FirstTimeUsed"), "0");
    EXPECT_EQ(menus().mnuFavArray[1].Caption.get(), "Old flight");
    EXPECT_EQ(preferences().fileLocationsPage.ComboJoystick.Text.get(), "FCS");
    EXPECT_EQ(editor().JoystickText.Font().name, "Old Font") << "in force without a restart";
    EXPECT_EQ(editor().joystick.FileName, "untitled.adv");
    EXPECT_EQ(fileText("c:\\tarvex\\Templates\\Hat.rtf"), "{\\rtf1 hat}");
    EXPECT_FALSE(files.fileExists("c:\\tarvex\\Templates\\program.exe"));
    EXPECT_EQ(fileText("c:\\tarvex\\Backup\\f22.b50.bak"), "BTN S1 a");
    EXPECT_EQ(lastBox().title, "Welcome back!");
    EXPECT_EQ(lastBox().text, "I've copied 5 files. Your settings as they were before are in "
                              "c:\\tarvex\\Settings before import.");
}

TEST_F(ImportTest, UntitledFilesTakeImportedExtensionsAlsoOfTheSameJoystick)
{
    files.addFile(std::string(old) + "\\Tarvex.ini", "[FileLocations]\r\nFirstTimeUsed=0\r\nJoyName=1\r\n"
                                                     "JoystickExtension=tqs\r\nMacroExtension=m50\r\n");
    importFrom(old, [] {});
    EXPECT_EQ(editor().joystick.FileName, "untitled.tqs");
    EXPECT_EQ(editor().macro.FileName, "untitled.m50");
}

TEST_F(ImportTest, AQuietDownloadIsNotImportedForTheF22Pro)
{
    files.addFile(std::string(old) + "\\Tarvex.ini",
                  "[FileLocations]\r\nJoyName=0\r\n[Miscellaneous]\r\nUseQonDownload=1\r\n");
    importFrom(old, [] {});
    EXPECT_FALSE(menus().mnuAppsQuiet.Checked);
    EXPECT_FALSE(menus().mnuAppsQuiet.Enabled);
    EXPECT_EQ(ini("Miscellaneous", "UseQonDownload"), "0");
}

TEST_F(ImportTest, TheListsOfTheMenusAreTheImportedOnes)
{
    files.addFile(std::string(old) + "\\Tarvex.ini",
                  "[PreviousJoystickFiles]\r\nJFArrayNum=1\r\nJFPath1=d:\\f22.b50\r\n"
                  "[PreviousMacroFiles]\r\nMFArrayNum=1\r\nMFPath1=d:\\f22.m50\r\n"
                  "[Games]\r\nGameArrayNum=1\r\nGameName1=Old game\r\n"
                  "[Apps]\r\nCustomAppName1=Old tool\r\nCustomAppUse1=1\r\n");
    importFrom(old, [] {});
    EXPECT_EQ(menus().mnuJFArray[1].Caption.get(), "d:\\f22.b50");
    EXPECT_EQ(menus().mnuMFArray[1].Caption.get(), "d:\\f22.m50");
    EXPECT_EQ(menus().mnuGameArray[1].Caption.get(), "Old game");
    EXPECT_EQ(menus().mnuCustomApp[0].Caption.get(), "Old tool");
    EXPECT_TRUE(menus().mnuCustomApp[0].Visible);
}

TEST_F(ImportTest, TheTicksOfTheMenusAreTheImportedOnes)
{
    using Tick = std::pair<const char*, MenuItem Menus::*>;
    const Tick ticks[] = {{"OpenSingleFileOnly", &Menus::mnuJoyPopUpSingleFile},
                          {"WakeUpWarning", &Menus::mnuUseWakeWarning},
                          {"MacroSaveUpdateMacros", &Menus::mnuMacrosSaveOptions1},
                          {"MacroSaveIdentifyJF", &Menus::mnuMacrosSaveOptions2},
                          {"UseQonDownload", &Menus::mnuAppsQuiet}};
    for (const char* value : {"1", "0"}) {
        std::string ini = "[FileLocations]\r\nJoyName=1\r\n[Miscellaneous]\r\n";
        for (const auto& [key, item] : ticks) ini += std::string(key) + '=' + value + "\r\n";
        files.addFile(std::string(old) + "\\Tarvex.ini", ini + "[Colours]\r\nInsertWithColour=" + value + "\r\n");
        importFrom(old, [] {});
        for (const auto& [key, item] : ticks) EXPECT_EQ((menus().*item).Checked.get(), *value == '1') << key;
        EXPECT_EQ(menus().mnuInsertWithColour.Checked.get(), *value == '1');
    }
}

TEST_F(ImportTest, AnotherColourSchemeIsInForceOnThePanes)
{
    files.addFile(std::string(old) + "\\Tarvex.ini", "[Colours]\r\nBackgroundColour=1193046\r\n");
    importFrom(old, [] {});
    EXPECT_EQ(editor().JoystickText.BackColor.get(), 1193046);
}

TEST_F(ImportTest, TheFrameShowsTheImportedSettings)
{
    typeMacro("Fire = a\r\n");
    editor().macro.Changed = changed::saved; // no question
    menus().mnuEditUpdateMacros.Click();
    ASSERT_FALSE(editor().FrameMacros.List1.empty());
    for (const char* value : {"1", "0", "1"}) {
        const bool on = *value == '1';
        std::string ini = "[FileLocations]\r\nGamesCaption=&Flights" + std::string(value) + "\r\n[Miscellaneous]\r\n";
        for (const char* key : {"OKtoShowToolTips", "FlatToolbar", "CanWrapToolbar", "GradientEffect",
                                "UseExtraButtons", "DisableCalibrateMenu"})
            ini += std::string(key) + '=' + value + "\r\n";
        files.addFile(std::string(old) + "\\Tarvex.ini", ini);
        importFrom(old, [] {});
        const ToolBar& bar = program().mum.Toolbar1;
        EXPECT_EQ(menus().mnuGames.Caption.get(), "&Flights" + std::string(value));
        EXPECT_EQ(bar.Flat.get(), on);
        EXPECT_EQ(bar.Wrappable.get(), on);
        EXPECT_EQ(program().mum.Gradient.get(), on);
        EXPECT_EQ(program().mum.Toolbar1.Buttons(toolbarButton::firstExtra).Visible.get(), on);
        EXPECT_EQ(menus().mnuAppsProPanel.Visible.get(), !on);
        EXPECT_EQ(program().mum.Toolbar1.Buttons(1).ToolTipText.get().empty(), !on);
        EXPECT_EQ(editor().FrameMacros.List1[0].ToolTipText.get().empty(), !on) << "the lists of macros, too";
    }
}

TEST_F(ImportTest, OneFileIsCountedAsOne)
{
    importFrom(old, [this] { tickOnly(ImportPart::Lists); });
    EXPECT_EQ(lastBox().text, "I've copied 1 file. Your settings as they were before are in "
                              "c:\\tarvex\\Settings before import.");
    EXPECT_FALSE(desktop.hourglass);
}

TEST_F(ImportTest, TodaysSettingsAreKeptFirst)
{
    const std::string before = fileText(iniPath);
    importFrom(old, [] {});
    EXPECT_EQ(fileText("c:\\tarvex\\Settings before import\\Tarvex.ini"), before);
    importFrom(old, [] {});
    EXPECT_TRUE(files.fileExists("c:\\tarvex\\Settings before import-2\\Tarvex.ini")) << "each time";
}

TEST_F(ImportTest, WithoutACopyOfTodaysSettingsNothingIsImported)
{
    files.failWrites("c:\\tarvex\\Settings before import\\Tarvex.ini",
                     RuntimeError(ErrorCode::DiskFull, "No space left on device"));
    importFrom(old, [] {});
    EXPECT_NE(settings().UndoMax, 77);
    EXPECT_FALSE(files.fileExists("c:\\tarvex\\Templates\\Hat.rtf"));
    EXPECT_EQ(lastBox().title, "Ooops!");
    EXPECT_EQ(lastBox().text, "I couldn't keep a copy of your settings as they are, so I haven't imported anything: No "
                              "space left on device");
    EXPECT_EQ(program().shared.errors.ErrorProcedure, "PREFS import");
}

TEST_F(ImportTest, OnlyWhatIsTickedIsCopied)
{
    importFrom(old, [this] { tickOnly(ImportPart::Templates); });
    EXPECT_NE(settings().UndoMax, 77);
    EXPECT_TRUE(files.fileExists("c:\\tarvex\\Templates\\Notes.TXT"));
    EXPECT_FALSE(files.fileExists("c:\\tarvex\\Backup\\f22.b50.bak"));
}

TEST_F(ImportTest, ACancelledImportLeavesNoTrace)
{
    importFrom(
        old, [] {}, &ImportForm::CancelButton);
    EXPECT_FALSE(files.directoryExists("c:\\tarvex\\Settings before import"));
    EXPECT_NE(settings().UndoMax, 77);
}

TEST_F(ImportTest, WithoutATickThereIsNothingToImport)
{
    importFrom(
        old,
        [this] {
            for (CheckBox& part : form().Parts) {
                part.Value = false;
                part.Click();
            }
            EXPECT_FALSE(form().ImportButton.Enabled);
            form().accepted = false;
        },
        &ImportForm::CancelButton);
}

TEST_F(ImportTest, ADamagedIniIsLeftOutAndSaidSo)
{
    files.addFile(std::string(old) + "\\Tarvex.ini", std::string("\x00\xFF[[[\r\n=\r\nProgramFilesPath\x00", 27));
    importFrom(old, [this] {
        EXPECT_EQ(caption(ImportPart::Settings), "&Settings (none)");
        EXPECT_FALSE(form().Parts[0].Enabled);
        EXPECT_EQ(form().LeftOut.Caption.get(), "Left out:\nTarvex.ini: damaged; there is no setting in it");
    });
    EXPECT_NE(settings().UndoMax, 77);
}

TEST_F(ImportTest, LinksThatLeadOutOfTheFolderAreLeftOut)
{
    files.makeLinkOutside(std::string(old) + "\\Tarvex.ini");
    files.makeLinkOutside(std::string(old) + "\\Templates\\Hat.rtf");
    files.makeLinkOutside(std::string(old) + "\\Backup");
    importFrom(old, [this] {
        EXPECT_EQ(caption(ImportPart::Settings), "&Settings (none)");
        EXPECT_EQ(caption(ImportPart::Templates), "&Templates (1 file, 1 KB)");
        EXPECT_EQ(caption(ImportPart::Backups), "&Backups (Backup is a link that leads out of the folder)");
        EXPECT_THAT(form().LeftOut.Caption.get(), HasSubstr("Hat.rtf: a link that leads out of the folder"));
    });
    EXPECT_FALSE(files.fileExists("c:\\tarvex\\Templates\\Hat.rtf"));
    EXPECT_FALSE(files.fileExists("c:\\tarvex\\Backup\\f22.b50.bak"));
}

TEST_F(ImportTest, AFolderBehindALinkIsNotSearched)
{
    files.makeLinkOutside("d:\\Program Files");
    inPreferences([this] {
        dialogues.folders.emplace_back("d:\\");
        preferences().extrasPage.Import.Click();
    });
    EXPECT_EQ(lastBox().text, "I've found no settings, lists, templates or backups of mine in d:\\ or the folders "
                              "below it.");
    EXPECT_EQ(dialogues.folderRequests.back().title, "Select the folder of the old installation, or one above it");
}

TEST_F(ImportTest, AFileInPlaceOfAFolderIsSaid)
{
    files.addFile("d:\\other\\Tarvex.ini", "[Miscellaneous]\r\nUndoMax=12\r\n");
    files.addFile("d:\\other\\Templates", "no folder");
    files.addDirectory("d:\\other\\Lists.ini");
    importFrom("d:\\other", [this] {
        EXPECT_EQ(caption(ImportPart::Templates), "&Templates (Templates is a file and no folder)");
        EXPECT_EQ(caption(ImportPart::Lists), "&Lists of loaders (none)");
    });
    EXPECT_EQ(settings().UndoMax, 12);
}

TEST_F(ImportTest, AFileInPlaceOfOurOwnFolderIsReported)
{
    files.addFile("c:\\tarvex\\Templates", "no folder");
    importFrom(old, [this] { tickOnly(ImportPart::Templates); });
    EXPECT_EQ(lastBox().title, "Ooops!");
    EXPECT_THAT(lastBox().text,
                testing::StartsWith("I've copied 0 files. Your settings as they were before are in "
                                    "c:\\tarvex\\Settings before import.\n\nThis went wrong:\n\nHat.rtf: "));
    EXPECT_EQ(fileText("c:\\tarvex\\Templates"), "no folder");
}

TEST_F(ImportTest, AGigabyteOfFilesIsBoundedAndSaid)
{
    const std::string large(importBound::fileBytes, 'x');
    for (int i = 0; i < 17; ++i) files.addFile(std::string(old) + "\\Backup\\" + std::to_string(i), large);
    files.addFile(std::string(old) + "\\Templates\\big.txt", large + "x");
    importFrom(old, [this] {
        EXPECT_THAT(caption(ImportPart::Backups), HasSubstr("256 MB"));
        EXPECT_FALSE(form().Parts[3].Enabled);
        EXPECT_THAT(form().LeftOut.Caption.get(), HasSubstr("big.txt: larger than 16 MB"));
        EXPECT_EQ(caption(ImportPart::Templates), "&Templates (2 files, 1 KB)");
    });
    EXPECT_FALSE(files.fileExists("c:\\tarvex\\Backup\\0"));
    EXPECT_TRUE(files.fileExists("c:\\tarvex\\Templates\\Hat.rtf"));
}

TEST_F(ImportTest, SettingsComeWholeOrNotAtAll)
{
    files.addFile(std::string(old) + "\\TCA.ini", "[Options]\r\nTCAGridCellSize=3\r\n");
    files.failWrites("c:\\tarvex\\TCA.ini", RuntimeError(ErrorCode::DiskFull, "No space left on device"));
    const std::int16_t before = settings().UndoMax;
    importFrom(old, [this] { tickOnly(ImportPart::Settings); });
    EXPECT_EQ(settings().UndoMax, before);
    EXPECT_EQ(ini("Odd", "Kept"), "(none)");
    EXPECT_THAT(lastBox().text, HasSubstr("left these settings as they were"));
}

TEST_F(ImportTest, FilesOfOneNameAreKeptBesideEachOther)
{
    files.addFile("c:\\tarvex\\Templates\\hat.rtf", "mine");
    files.addFile("c:\\tarvex\\Templates\\notes.txt", "notes");
    importFrom(old, [this] { tickOnly(ImportPart::Templates); });
    EXPECT_EQ(fileText("c:\\tarvex\\Templates\\hat.rtf"), "mine");
    EXPECT_EQ(fileText("c:\\tarvex\\Templates\\Hat-2.rtf"), "{\\rtf1 hat}");
    EXPECT_FALSE(files.fileExists("c:\\tarvex\\Templates\\Notes-2.TXT")) << "the same file";
}

TEST_F(ImportTest, AFolderWithNothingOfOursIsSaid)
{
    files.addDirectory("d:\\empty\\deep");
    inPreferences([this] {
        dialogues.folders.emplace_back("d:\\empty");
        preferences().extrasPage.Import.Click();
    });
    EXPECT_EQ(lastBox().title, "Hmmm...let me think...");
    EXPECT_EQ(lastBox().text, "I've found no settings, lists, templates or backups of mine in d:\\empty or the folders "
                              "below it.");
    EXPECT_THAT(dialogues.modalForms, ElementsAre("Preferences"));
}

TEST_F(ImportTest, OurOwnFolderIsRefused)
{
    inPreferences([this] {
        dialogues.folders.emplace_back("c:\\Tarvex");
        preferences().extrasPage.Import.Click();
    });
    EXPECT_EQ(lastBox().text, "That's where I keep my own settings. There is nothing to bring along.");
}

TEST_F(ImportTest, FilesOnAnotherDriveAreHintedAt)
{
    files.removeDirectory("c:\\tm\\b50progs");
    importFrom(old, [] {});
    EXPECT_THAT(lastBox().text,
                testing::EndsWith(".\n\nYour files were in c:\\tm\\b50progs, which isn't there on this machine. Either "
                                  "set that drive on the Extras page, or choose another folder on the File locations "
                                  "page."));
}

TEST_F(ImportTest, AManyFoldersDeepDiskIsSearchedToABound)
{
    std::string folder = "d:\\deep";
    for (int i = 0; i < 30; ++i) files.addDirectory(folder += "\\x");
    for (std::size_t i = 0; i < importBound::folders; ++i) files.addDirectory("d:\\wide\\" + std::to_string(i));
    files.addFile(folder + "\\Tarvex.ini", "[Miscellaneous]\r\nUndoMax=12\r\n");
    EXPECT_EQ(findInstallation(files, "d:\\deep"), folder);
    EXPECT_EQ(findInstallation(files, "d:\\wide"), "d:\\wide");
}

TEST_F(ImportTest, PartsOfWhichOnlyTheFirstIsThereCanBeImported)
{
    for (const char* name : {"\\Lists.ini", "\\Templates\\Hat.rtf", "\\Templates\\Notes.TXT", "\\Backup\\f22.b50.bak"})
        files.removeFile(old + std::string(name));
    importFrom(old, [this] {
        EXPECT_TRUE(form().ImportButton.Enabled);
        EXPECT_EQ(caption(ImportPart::Lists), "&Lists of loaders (none)");
        EXPECT_FALSE(form().Parts[1].Enabled || form().Parts[1].Value);
        EXPECT_FALSE(desktop.hourglass) << "the search is over";
    });
    EXPECT_FALSE(desktop.hourglass);
}

TEST_F(ImportTest, BothButtonsClose)
{
    for (Button ImportForm::*button : {&ImportForm::CancelButton, &ImportForm::ImportButton}) {
        importFrom(
            old, [this] { form().Form.Visible = true; }, button);
        EXPECT_FALSE(form().Form.Visible);
    }
}

TEST_F(ImportTest, WithoutSettingsOrACopyOfTodaysNothingCountsAsImported)
{
    dialogues.folders.emplace_back(std::nullopt);
    EXPECT_FALSE(importInstallation(preferences())) << "cancelled";
    dialogues.folders.emplace_back("d:\\Program Files\\Nothing");
    EXPECT_FALSE(importInstallation(preferences())) << "nothing found";
    EXPECT_FALSE(desktop.hourglass);
    dialogues.folders.emplace_back("c:\\tarvex");
    EXPECT_FALSE(importInstallation(preferences())) << "its own folder";
}

TEST_F(ImportTest, AQuietDownloadIsNotImportedWhereTheJoystickWasAnF22ProBefore)
{
    settings().JoyName = 0;
    settings().JoystickExtension = "f22";
    settings().MacroExtension = "m22";
    files.addFile(std::string(old) + "\\Tarvex.ini",
                  "[FileLocations]\r\nJoyName=0\r\nJoystickExtension=f22\r\nMacroExtension=m22\r\n"
                  "[Miscellaneous]\r\nUseQonDownload=1\r\n");
    importFrom(old, [] {});
    EXPECT_FALSE(menus().mnuAppsQuiet.Checked);
    EXPECT_FALSE(menus().mnuAppsQuiet.Enabled);
}

} // namespace
} // namespace tarvex
