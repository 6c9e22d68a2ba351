#include "preferences/extras_page.h"

#include "platform/machine_settings.h"
#include "preferences/extras_drives.h"
#include "preferences/extras_runners.h"
#include "preferences_fixture.h"
#include "shell/appearance.h"
#include "shell/extras.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct ExtrasPageTest : testing::Test, PreferencesProgram {
    static constexpr const char* platformIni = "c:\\tarvex\\Platform.ini";

    ExtrasPage& page() { return preferences().extrasPage; }
    std::string machineKey(const std::string& section, const std::string& key)
    {
        return ProfileFile(files, platformIni).readString(section, key, "(none)", 5000);
    }
    void setMachineKey(const std::string& section, const std::string& key, const std::string& value)
    {
        ProfileFile(files, platformIni).writeString(section, key, value);
    }
    std::string folderOf(char letter)
    {
        for (const DriveFolder& drive : page().Drives.get()) {
            if (drive.letter == letter) return drive.folder;
        }
        return "(no drive)";
    }
    int rowOf(char letter)
    {
        const std::vector<DriveFolder>& drives = page().Drives;
        for (std::size_t row = 0; row < drives.size(); ++row) {
            if (drives[row].letter == letter) return static_cast<int>(row);
        }
        return -1;
    }
};

// ---- drives
// ----------------------------------------------------------------------------------------------------------

TEST_F(ExtrasPageTest, ShowsTheDrivesOfTheMachine)
{
    inPreferences([this] {
        EXPECT_EQ(page().Drives.get().size(), 2U);
        EXPECT_EQ(folderOf('c'), "/home/pilot/tarvex/drive_c");
        EXPECT_EQ(folderOf('z'), "/");
        EXPECT_FALSE(page().DriveBrowse.Enabled) << "no drive is chosen";
    });
    EXPECT_FALSE(files.fileExists(platformIni)) << "nothing was changed";
}

TEST_F(ExtrasPageTest, ADriveThatIsAddedCountsWhenTheDialogueCloses)
{
    inPreferences([this] {
        dialogues.folders.emplace_back("z:\\mnt\\disk");
        page().DriveAdd.Click();
        EXPECT_EQ(folderOf('d'), "/mnt/disk");
        EXPECT_EQ(page().DriveRow, rowOf('d'));
        EXPECT_TRUE(machine.chosen.empty()) << "not before";
    });
    EXPECT_EQ(machineKey("Drives", "d"), "/mnt/disk");
    EXPECT_EQ(machine.chosen, (DriveChoices{{'d', "/mnt/disk"}}));
}

TEST_F(ExtrasPageTest, ADriveOfTheOpenFilesMovesAtTheNextStart)
{
    inPreferences([this] { writeDriveFolder(page(), rowOf('c'), "/home/pilot/"); });
    EXPECT_EQ(machineKey("Drives", "c"), "/home/pilot") << "without the separator at its end";
    EXPECT_TRUE(machine.chosen.empty());
    EXPECT_EQ(lastBox().text, "What I have open is on c:, so that move waits until you start me the next time.");
    inPreferences([this] { EXPECT_EQ(folderOf('c'), "/home/pilot") << "as it will be"; });
}

TEST_F(ExtrasPageTest, AFolderThatIsNotThereIsRefused)
{
    inPreferences([this] {
        int shown = 0;
        const Connection refilled = page().Drives.changed.connect([&] { ++shown; });
        for (const char* folder : {"/no/such folder", "relative", "c:\\dos", "\"/mnt/disk\"", "/mnt\n/disk"}) {
            writeDriveFolder(page(), rowOf('c'), folder);
            EXPECT_EQ(lastBox().text, "There is no folder " + std::string(folder) +
                                          " on this machine, so c: stays at /home/pilot/tarvex/drive_c.");
        }
        writeDriveFolder(page(), rowOf('c'), "/" + std::string(300, 'x'));
        EXPECT_EQ(shown, 6) << "the table shows the folder that counts again";
        EXPECT_EQ(folderOf('c'), "/home/pilot/tarvex/drive_c");
    });
    EXPECT_FALSE(files.fileExists(platformIni));
}

TEST_F(ExtrasPageTest, TheDriveOfTheWholeDiskStays)
{
    inPreferences([this] {
        page().DriveRow = rowOf('z');
        EXPECT_FALSE(page().DriveBrowse.Enabled);
        writeDriveFolder(page(), rowOf('z'), "/mnt/disk");
        EXPECT_EQ(folderOf('z'), "/");
    });
}

TEST_F(ExtrasPageTest, TheUsersChoiceIsTakenBackByAsFound)
{
    setMachineKey("Drives", "c", "/home/pilot");
    start();
    inPreferences([this] {
        page().DriveRow = rowOf('c');
        EXPECT_TRUE(page().DriveReset.Enabled);
        page().DriveReset.Click();
        EXPECT_EQ(folderOf('c'), "/home/pilot/tarvex/drive_c");
        EXPECT_FALSE(page().DriveReset.Enabled);
    });
    EXPECT_EQ(machineKey("Drives", "c"), "");
}

TEST_F(ExtrasPageTest, AnEmptyFolderTakesTheChoiceBackToo)
{
    setMachineKey("Drives", "d", "/mnt/disk");
    start();
    inPreferences([this] {
        writeDriveFolder(page(), rowOf('d'), "  ");
        EXPECT_EQ(folderOf('d'), "(no drive)");
    });
    EXPECT_EQ(machineKey("Drives", "d"), "");
}

TEST_F(ExtrasPageTest, ACancelledFolderChangesNothing)
{
    inPreferences([this] {
        dialogues.folders.emplace_back(std::nullopt);
        page().DriveAdd.Click();
        EXPECT_EQ(page().Drives.get().size(), 2U);
        page().DriveRow = rowOf('c');
        dialogues.folders.emplace_back(std::nullopt);
        page().DriveBrowse.Click();
        EXPECT_EQ(dialogues.folderRequests.back().directory, "c:\\");
        EXPECT_EQ(dialogues.folderRequests.back().title, "Select the folder of drive c:");
    });
    EXPECT_FALSE(files.fileExists(platformIni));
}

TEST_F(ExtrasPageTest, WithAllLettersTakenNoDriveIsAdded)
{
    for (char letter = 'd'; letter < 'z'; ++letter) machine.found.push_back({letter, "/mnt/disk"});
    inPreferences([this] {
        page().DriveAdd.Click();
        EXPECT_EQ(lastBox().text, "All the letters from d: to z: are taken.");
    });
}

TEST_F(ExtrasPageTest, TheLastLetterIsTheLastThatIsAdded)
{
    machine.found = {{'c', "/home/pilot", DriveFolder::Origin::Tarvex}};
    for (char letter = 'd'; letter < 'z'; ++letter) machine.found.push_back({letter, "/home/pilot"});
    inPreferences([this] {
        dialogues.folders.emplace_back("c:\\");
        page().DriveAdd.Click();
        EXPECT_EQ(folderOf('z'), "/home/pilot");
        EXPECT_EQ(dialogues.folderRequests.back().title, "Select the folder of drive z:");
    });
    EXPECT_EQ(machineKey("Drives", "z"), "/home/pilot");
}

TEST_F(ExtrasPageTest, EachDriveOfTheAlphabetCanBeMoved)
{
    machine.found.clear();
    for (char letter = 'a'; letter <= 'z'; ++letter)
        machine.found.push_back({letter, "/home/pilot", DriveFolder::Origin::Wine});
    inPreferences([this] {
        for (char letter = 'a'; letter <= 'z'; ++letter) writeDriveFolder(page(), rowOf(letter), "/mnt/disk");
    });
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        EXPECT_EQ(machineKey("Drives", std::string(1, letter)), "/mnt/disk");
        EXPECT_EQ(machine.chosen.count(letter), letter == 'c' ? 0U : 1U) << letter;
    }
    start();
    inPreferences([this] {
        for (char letter = 'a'; letter <= 'z'; ++letter) writeDriveFolder(page(), rowOf(letter), "");
    });
    for (char letter = 'a'; letter <= 'z'; ++letter) EXPECT_EQ(machineKey("Drives", std::string(1, letter)), "");
}

TEST_F(ExtrasPageTest, TheButtonsOfADriveAreThoseThatCanDoSomething)
{
    setMachineKey("Drives", "d", "/");
    start();
    inPreferences([this] {
        const auto enabled = [this](char letter) {
            page().DriveRow = letter == '-' ? -1 : rowOf(letter);
            return std::pair(page().DriveBrowse.Enabled.get(), page().DriveReset.Enabled.get());
        };
        EXPECT_EQ(enabled('c'), std::pair(true, false));
        EXPECT_EQ(enabled('d'), std::pair(true, true)) << "the whole disk, by the user's own choice";
        EXPECT_EQ(enabled('z'), std::pair(false, false));
        EXPECT_EQ(enabled('-'), std::pair(false, false));
        page().DriveRow = static_cast<int>(page().Drives.get().size());
        EXPECT_FALSE(page().DriveBrowse.Enabled || page().DriveReset.Enabled) << "behind the last row";
        page().DriveBrowse.Click();
        page().DriveReset.Click();
        EXPECT_EQ(folderOf('d'), "/");
    });
}

TEST_F(ExtrasPageTest, AChosenFolderTakesThePlaceOfTheOldOneAndItsRowStaysChosen)
{
    inPreferences([this] {
        page().DriveRow = rowOf('c');
        dialogues.folders.emplace_back("z:\\mnt\\disk\\");
        page().DriveBrowse.Click();
        EXPECT_EQ(folderOf('c'), "/mnt/disk");
        EXPECT_EQ(page().DriveRow, rowOf('c'));
        EXPECT_TRUE(page().DriveReset.Enabled);
    });
}

TEST_F(ExtrasPageTest, OfAFolderTheSeparatorsAtItsEndAreLeftOut)
{
    setMachineKey("Drives", "d", "/mnt/disk");
    start();
    inPreferences([this] {
        writeDriveFolder(page(), rowOf('d'), "  /home/pilot// ");
        EXPECT_EQ(folderOf('d'), "/home/pilot");
        writeDriveFolder(page(), rowOf('d'), "//");
        EXPECT_EQ(folderOf('d'), "/");
    });
}

TEST_F(ExtrasPageTest, AllDrivesOfOpenFilesWait)
{
    for (const char letter : {'d', 'e', 'f'}) {
        machine.found.push_back({letter, "/home/pilot", DriveFolder::Origin::Wine});
        files.addDirectory(std::string(1, letter) + ":");
    }
    files.addFile("d:\\a.b50", "a");
    files.addFile("e:\\b.m50", "b = c\r\n");
    menus().mnuJoyPopUpSingleFile.Checked = true;
    openBoth("d:\\a.b50");
    openBoth("e:\\b.m50");
    inPreferences([this] {
        for (const char letter : {'d', 'e', 'f'}) writeDriveFolder(page(), rowOf(letter), "/mnt/disk");
    });
    EXPECT_EQ(lastBox().text, "What I have open is on d:, e:, so that move waits until you start me the next time.");
    EXPECT_EQ(machine.chosen, (DriveChoices{{'f', "/mnt/disk"}}));
}

TEST_F(ExtrasPageTest, AFolderThatIsAsItWasIsNoChoice)
{
    machine.folders.insert("/home/pilot/tarvex/drive_c");
    inPreferences([this] {
        writeDriveFolder(page(), rowOf('c'), "/home/pilot/tarvex/drive_c/");
        page().DriveRow = rowOf('c');
        EXPECT_FALSE(page().DriveReset.Enabled);
    });
    EXPECT_FALSE(files.fileExists(platformIni));
}

// ---- Wine and DOSBox
// -------------------------------------------------------------------------------------------------

TEST_F(ExtrasPageTest, ARunnerIsFoundByItselfAndSaysItsVersion)
{
    machine.runners[Runner::Wine] = "/usr/bin/wine";
    machine.whenAsked = [](const std::string& path) {
        return ProgramOutput{true, path == "/usr/bin/wine" ? "wine-8.0 (Debian)\n" : ""};
    };
    inPreferences([this] {
        EXPECT_EQ(page().Runners[0].Found.get(), "/usr/bin/wine");
        EXPECT_EQ(page().Runners[0].Path.Text.get(), "");
        page().Runners[0].Test.Click();
        EXPECT_EQ(page().Runners[0].Answer.Caption.get(), "wine-8.0 (Debian)");
        page().Runners[1].Test.Click();
        EXPECT_EQ(page().Runners[1].Answer.Caption.get(), "I haven't found DOSBox. Install it, or choose where it is.");
    });
    EXPECT_FALSE(files.fileExists(platformIni)) << "what is found by itself isn't written down";
}

TEST_F(ExtrasPageTest, AChosenRunnerIsTestedAndKept)
{
    files.addFile("c:\\opt\\dosbox", "");
    machine.whenAsked = [](const std::string&) {
        return ProgramOutput{true, "\nDOSBox version 0.74-3, copyright\nmore\n"};
    };
    inPreferences([this] {
        dialogues.filesToOpen.emplace_back("z:\\opt\\dosbox");
        page().Runners[1].Browse.Click();
        EXPECT_EQ(page().Runners[1].Path.Text.get(), "/opt/dosbox");
        page().Runners[1].Test.Click();
        EXPECT_EQ(page().Runners[1].Answer.Caption.get(), "DOSBox version 0.74-3, copyright");
    });
    EXPECT_EQ(machineKey("Programs", "DOSBox"), "/opt/dosbox");
    inPreferences([this] {
        EXPECT_EQ(page().Runners[1].Path.Text.get(), "/opt/dosbox");
        EXPECT_EQ(page().Runners[1].Answer.Caption.get(), "") << "of the last time";
        page().Runners[1].Path.Text = " ";
    });
    EXPECT_EQ(machineKey("Programs", "DOSBox"), "") << "found by itself again";
}

TEST_F(ExtrasPageTest, ARunnerThatCannotBeStartedIsReportedBesideIt)
{
    inPreferences([this] {
        page().Runners[0].Path.Text = "/gone/wine";
        page().Runners[0].Test.Click();
        EXPECT_EQ(page().Runners[0].Answer.Caption.get(), "I couldn't run /gone/wine: File not found");
        page().Runners[0].Path.Text = "wine";
        page().Runners[0].Test.Click();
        EXPECT_EQ(page().Runners[0].Answer.Caption.get(), "I need the full path, from \"/\" on.");
    });
    EXPECT_FALSE(desktop.hourglass);
}

TEST(Verdict, SaysWhatTheAnswerMeans)
{
    EXPECT_EQ(verdict(Runner::Wine, {true, "wine-8.0\n"}), "wine-8.0");
    EXPECT_EQ(verdict(Runner::DosBox, {true, "dosbox-staging, version 0.80\r\n"}), "dosbox-staging, version 0.80");
    EXPECT_EQ(verdict(Runner::Wine, {true, "ls (GNU coreutils) 9.1\n"}),
              "That doesn't look like Wine. It says: ls (GNU coreutils) 9.1");
    EXPECT_EQ(verdict(Runner::Wine, {true, " \n"}), "It ran, but didn't say which version it is.");
    EXPECT_EQ(verdict(Runner::Wine, {false, "wine"}), "It didn't say its version for 10 seconds, so I've stopped it.");
}

// ---- appearance, folder, ticks
// ---------------------------------------------------------------------------------------

TEST_F(ExtrasPageTest, TheAppearanceIsInForceAtOnceAndFollowsTheMenu)
{
    Appearance appearance(files, "c:\\tarvex", menus());
    inPreferences([&] {
        EXPECT_TRUE(page().Appearance[0].Value);
        page().Appearance[2].Click();
        EXPECT_EQ(appearance.theme.get(), Appearance::Theme::Dark);
        EXPECT_TRUE(page().Appearance[2].Value);
        EXPECT_FALSE(page().Appearance[0].Value);
        menus().mnuAppearanceLight.Click();
        EXPECT_TRUE(page().Appearance[1].Value);
    });
    EXPECT_EQ(machineKey("Appearance", "Theme"), "light");
}

TEST_F(ExtrasPageTest, TheFolderOfTheSettingsIsShownAndOpened)
{
    inPreferences([this] {
        EXPECT_EQ(page().SettingsFolder.Text.get(), "/home/pilot/tarvex/drive_c/tarvex");
        page().OpenFolder.Click();
        EXPECT_THAT(machine.shown, testing::ElementsAre("/home/pilot/tarvex/drive_c/tarvex"));
        EXPECT_TRUE(dialogues.boxes.empty());
        machine.hasFileManager = false;
        page().OpenFolder.Click();
        EXPECT_EQ(lastBox().text, "I couldn't open a window on /home/pilot/tarvex/drive_c/tarvex.");
    });
}

TEST_F(ExtrasPageTest, ATickIsKeptInTheSectionExtras)
{
    ASSERT_EQ(page().Ticks.size(), extraTicks().size());
    const std::string key(extraKey::askForFiles);
    inPreferences([this] {
        EXPECT_TRUE(page().Ticks[0].Value);
        page().Ticks[0].Value = false;
    });
    EXPECT_EQ(machineKey("Extras", key), "0");
    EXPECT_FALSE(program().shared.extras.on(extraKey::askForFiles));
    inPreferences([this] {
        EXPECT_FALSE(page().Ticks[0].Value);
        page().Ticks[0].Value = true;
    });
    EXPECT_TRUE(program().shared.extras.on(extraKey::askForFiles));
}

TEST_F(ExtrasPageTest, PlatformIniIsWrittenOnceForAllOfIt)
{
    inPreferences([this] {
        page().Runners[0].Path.Text = "/opt/wine";
        page().Runners[1].Path.Text = "/opt/dosbox";
        page().Ticks[0].Value = false;
        dialogues.folders.emplace_back("z:\\mnt\\disk");
        page().DriveAdd.Click();
        files.clearWrites();
    });
    const auto writes = files.writes();
    EXPECT_EQ(std::count_if(writes.begin(), writes.end(), [](const auto& write) { return write.path == platformIni; }),
              1);
}

} // namespace
} // namespace tarvex
