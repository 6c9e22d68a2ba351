#include "preferences/files_home.h"

#include "preferences_fixture.h"
#include "shell/extras.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

/// A first start, with a user who closes the preferences without setting a folder.
struct FilesHomeTest : testing::Test, PreferencesProgram {
    FilesHomeTest() : PreferencesProgram(false)
    {
        setIni("FileLocations", "FirstTimeUsed", "1");
        setIni("FileLocations", "ProgramFilesPath", "");
        files.removeDirectory("c:\\tm\\b50progs"); // or the start would find them
        files.removeDirectory("c:\\tm");
    }
    FilesHome& form() { return preferences().filesHome; }
    /// The answer of the user, each time the question is asked.
    void startAndAnswer(const std::function<void()>& answer)
    {
        dialogues.whileModal = [this, answer] {
            if (dialogues.modalForms.back() == "FilesHome") answer();
        };
        start();
    }
    void choose(int choice)
    {
        form().Choices[static_cast<std::size_t>(choice)].Click();
        form().Ok.Click();
    }
    long asked() { return std::count(dialogues.modalForms.begin(), dialogues.modalForms.end(), "FilesHome"); }
};

TEST_F(FilesHomeTest, OffersANewFolderOnTheDrive)
{
    startAndAnswer([this] {
        EXPECT_EQ(form().Choices[0].Caption.get(), "In a &new folder, c:\\tm (/home/pilot/tarvex/drive_c/tm)");
        EXPECT_TRUE(form().Choices[0].Value);
        form().Ok.Click();
    });
    EXPECT_EQ(asked(), 1);
    EXPECT_TRUE(files.directoryExists("c:\\tm"));
    EXPECT_EQ(settings().ProgramFilesPath, "c:\\tm\\");
    EXPECT_EQ(ini("FileLocations", "ProgramFilesPath"), "c:\\tm\\");
    EXPECT_EQ(ini("Launcher", "FilesDirectory"), "c:\\tm\\");
}

TEST_F(FilesHomeTest, TheEmptyDocumentsBelongToTheFolder)
{
    startAndAnswer([this] { form().Ok.Click(); });
    EXPECT_EQ(editor().joystick.FilePath, "c:\\tm\\" + editor().joystick.FileName);
    EXPECT_EQ(editor().macro.FilePath, "c:\\tm\\" + editor().macro.FileName);
}

TEST_F(FilesHomeTest, TakesAFolderOfTheUsersInLowerCase)
{
    startAndAnswer([this] {
        dialogues.folders.emplace_back("z:\\Home\\Pilot");
        choose(FilesHome::ownFolder);
    });
    EXPECT_EQ(ini("FileLocations", "ProgramFilesPath"), "z:\\home\\pilot\\");
}

TEST_F(FilesHomeTest, ACancelledFolderLeadsBackToTheQuestion)
{
    startAndAnswer([this] {
        if (asked() > 1) return choose(FilesHome::later);
        dialogues.folders.emplace_back(std::nullopt);
        choose(FilesHome::ownFolder);
    });
    EXPECT_EQ(asked(), 2);
    EXPECT_EQ(settings().ProgramFilesPath, "");
}

TEST_F(FilesHomeTest, LaterIsNotAskedAgainUntilTheUserWantsIt)
{
    startAndAnswer([this] { choose(FilesHome::later); });
    EXPECT_EQ(asked(), 1);
    start();
    inPreferences([] {});
    EXPECT_EQ(asked(), 1);
    inPreferences([this] {
        if (dialogues.modalForms.back() == "FilesHome") return;
        preferences().extrasPage.Ticks[0].Value = true;
    });
    EXPECT_EQ(asked(), 2) << "ticked anew";
}

TEST_F(FilesHomeTest, ClosingTheQuestionIsLater)
{
    startAndAnswer([this] { form().Form.Visible = false; });
    EXPECT_EQ(asked(), 1);
    EXPECT_FALSE(program().shared.extras.on(extraKey::askForFiles));
}

TEST_F(FilesHomeTest, IsNotAskedWhenTheDialogueSetTheFolder)
{
    dialogues.whileModal = [this] { preferences().fileLocationsPage.Text2.Text = "C:\\TM"; };
    start();
    EXPECT_THAT(dialogues.modalForms, ElementsAre("Preferences"));
    inPreferences([this] { preferences().fileLocationsPage.Text2.Text = ""; });
    EXPECT_EQ(asked(), 0) << "the first use is over";
}

TEST_F(FilesHomeTest, AnOldInstallationBringsItsFolder)
{
    files.addFile("d:\\tarvex\\Tarvex.ini",
                  "[FileLocations]\r\nProgramFilesPath=c:\\tm\\old\r\n[Colours]\r\nRAWColour=255\r\n");
    dialogues.whileModal = [this] {
        if (dialogues.modalForms.back() == "Import") preferences().importForm.ImportButton.Click();
        if (dialogues.modalForms.back() != "FilesHome") return;
        dialogues.folders.emplace_back("d:\\");
        choose(FilesHome::oldInstallation);
    };
    start();
    EXPECT_EQ(asked(), 1);
    EXPECT_EQ(settings().ProgramFilesPath, "c:\\tm\\old");
    EXPECT_EQ(ini("Colours", "RAWColour"), "255");
    EXPECT_EQ(ini("FileLocations", "FirstTimeUsed"), "0");
}

TEST_F(FilesHomeTest, AFolderThatCannotBeMadeIsSaidAndAskedAgain)
{
    files.addFile("c:\\tm", "a file");
    startAndAnswer([this] { choose(asked() > 1 ? FilesHome::later : FilesHome::newFolder); });
    EXPECT_EQ(asked(), 2);
    EXPECT_THAT(lastBox().text, testing::StartsWith("I couldn't make c:\\tm: ")) << "and the reason";
    EXPECT_EQ(program().shared.errors.ErrorProcedure, "PREFS askForFilesHome");
}

TEST_F(FilesHomeTest, WithoutAnyWindowTheStartGoesOn)
{
    dialogues.modalFormsExist = false;
    start();
    EXPECT_EQ(settings().ProgramFilesPath, "");
}

TEST_F(FilesHomeTest, ClosedAfterACancelledFolderItIsNotAskedOnAndOn)
{
    startAndAnswer([this] {
        ASSERT_LE(asked(), 2);
        if (asked() == 2) return; // closed by its frame
        dialogues.folders.emplace_back(std::nullopt);
        choose(FilesHome::ownFolder);
    });
    EXPECT_EQ(asked(), 2);
    EXPECT_EQ(dialogues.folderRequests.size(), 1U);
    EXPECT_EQ(dialogues.folderRequests.back().title, "Select your Thrustmaster programs directory");
}

TEST_F(FilesHomeTest, OneChoiceIsMarkedAndOkCloses)
{
    startAndAnswer([this] {
        form().Form.Visible = true;
        for (int choice : {FilesHome::later, FilesHome::oldInstallation, FilesHome::ownFolder, FilesHome::later}) {
            form().Choices[static_cast<std::size_t>(choice)].Click();
            for (int i = 0; i < 4; ++i) EXPECT_EQ(form().Choices[static_cast<std::size_t>(i)].Value, i == choice);
        }
        form().Ok.Click();
        EXPECT_FALSE(form().Form.Visible);
    });
}

} // namespace
} // namespace tarvex
