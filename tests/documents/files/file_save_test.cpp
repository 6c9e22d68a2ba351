#include "documents/files/file_save.h"

#include "documents/files/auto_save.h"
#include "documents/text/rtf/rtf.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";
constexpr const char* migMacros = "c:\\tm\\b50progs\\mig.m50";

struct SaveTest : testing::Test {
    TestProgram t;

    void openPair()
    {
        t.files.addFile(mig, "BTN S1 x\r\n");
        t.files.addFile(migMacros, "Fire = f\r\n");
        t.settings().CheckIdentifyOK = 0; // a joystick text without an "e" has nothing to identify
        t.openBoth(mig);
        t.files.clearWrites();
    }
    std::string written(const std::string& path) { return t.fileText(path); }
};

TEST_F(SaveTest, WritesThePlainTextTheBackupAndTheColouredShadow)
{
    openPair();
    t.typeJoystick("Rem me\r\n");
    t.editor().JoystickText.setSelStart(0);
    t.editor().JoystickText.setSelLength(3);
    t.editor().JoystickText.setSelColor(8421504);
    t.menus().mnuFileSave.Click();

    EXPECT_EQ(written(mig), "Rem me\r\nBTN S1 x\r\n");
    EXPECT_EQ(written("c:\\tarvex\\Backup\\mig.b50"), "Rem me\r\nBTN S1 x\r\n");
    const RichText shadow = readRtf(written("c:\\tarvex\\Rtf\\mig.b50"), t.editor().formats);
    EXPECT_TRUE(shadow == t.editor().JoystickText.TextRTF());
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.status(), std::string(mig) + " saved successfully.");
    EXPECT_EQ(t.status(2), "");
    EXPECT_EQ(t.program().mum.StatusBar.Panels(2).ToolTipText.get(), "mig.b50 is saved");
    EXPECT_EQ(t.editor().TempRichTextBox.Text(), "");
}

TEST_F(SaveTest, WithoutCreateBackupNoBackupIsWritten)
{
    openPair();
    t.settings().CreateBackup = 0;
    t.menus().mnuFileSave.Click();
    EXPECT_FALSE(t.files.fileExists("c:\\tarvex\\Backup\\mig.b50"));
}

TEST_F(SaveTest, TheMacroFileGoesToItsOwnPath)
{
    openPair();
    t.editor().TabStrip1.Select(2);
    t.typeMacro("A = a\r\n");
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(written(migMacros), "A = a\r\nFire = f\r\n");
    EXPECT_TRUE(t.files.fileExists("c:\\tarvex\\Rtf\\mig.m50"));
    EXPECT_EQ(written(mig), "BTN S1 x\r\n");
}

TEST_F(SaveTest, SavingAMacroFileUpdatesAndIdentifiesAndKeepsTheCaret)
{
    openPair();
    std::string ran;
    t.menus().mnuEditUpdateMacros.handler = [&] {
        ran += "update ";
        t.editor().MacroText.setSelStart(0);
    };
    t.menus().mnuViewIdentify.handler = [&] { ran += "identify"; };
    t.editor().MacroText.setSelStart(5);
    SaveMacroText(t.editor());
    EXPECT_EQ(ran, "update identify");
    EXPECT_EQ(t.editor().MacroText.SelStart(), 5);
}

TEST_F(SaveTest, SavingAMacroFileFollowsTheTicksOfItsOptions)
{
    openPair();
    std::string ran;
    t.menus().mnuEditUpdateMacros.handler = [&] { ran += "update"; };
    t.menus().mnuViewIdentify.handler = [&] { ran += "identify"; };
    t.menus().mnuMacrosSaveOptions1.Click();
    t.menus().mnuMacrosSaveOptions2.Click();
    SaveMacroText(t.editor());
    EXPECT_EQ(ran, "");
    EXPECT_EQ(t.settings().MacroSaveUpdateMacros, 0);
}

TEST_F(SaveTest, WithAnEmptyJoystickFileNothingIsIdentified)
{
    openPair();
    t.menus().mnuFileNewJoystick.Click();
    bool identified = false;
    t.menus().mnuViewIdentify.handler = [&] { identified = true; };
    SaveMacroText(t.editor());
    EXPECT_FALSE(identified);
    t.typeJoystick("e");
    SaveMacroText(t.editor());
    EXPECT_TRUE(identified);
}

TEST_F(SaveTest, AnUntitledDocumentGoesThroughSaveAsAndNotThroughTheReadOnlyTest)
{
    t.files.addFile("c:\\tm\\b50progs\\untitled.b50", "old");
    t.files.setReadOnly("c:\\tm\\b50progs\\untitled.b50");
    t.typeJoystick("mine");
    t.dialogues.filesToSave = {std::nullopt};
    t.menus().mnuFileSave.Click();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    ASSERT_EQ(t.dialogues.saveRequests.size(), 1U);
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
}

TEST_F(SaveTest, SaveAsTakesTheNewNameInLowerCase)
{
    t.typeJoystick("mine");
    t.dialogues.filesToSave = {"C:\\TM\\B50progs\\New.B50"};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(written("c:\\tm\\b50progs\\new.b50"), "mine");
    EXPECT_EQ(t.editor().joystick.FilePath, "c:\\tm\\b50progs\\new.b50");
    EXPECT_EQ(t.editor().TabStrip1.Tabs(1).Caption.get(), "new.b50");
    EXPECT_TRUE(t.files.fileExists("c:\\tarvex\\Rtf\\new.b50"));
    EXPECT_TRUE(t.files.fileExists("c:\\tarvex\\Backup\\untitled.b50")) << "the tab still showed the old name";
}

TEST_F(SaveTest, SaveAsOffersItsFilterAndTheDefaultExtension)
{
    t.dialogues.filesToSave = {std::nullopt, std::nullopt};
    t.menus().mnuFileSaveAs.Click();
    const FileRequest& joystick = t.dialogues.saveRequests[0];
    EXPECT_EQ(joystick.filter, "Joystick file (*.b50)|*.b50|F22 joystick file (*.f22) |*.f22|F16 joystick file (*.b50) "
                               "|*.b50|FCS joystick file (*.adv) |*.adv|All files (*.*)|*.*");
    EXPECT_EQ(joystick.defaultExtension, "b50");
    EXPECT_EQ(joystick.directory, "c:\\tm\\b50progs\\");
    t.editor().TabStrip1.Select(2);
    t.menus().mnuFileSaveAs.Click();
    const FileRequest& macro = t.dialogues.saveRequests[1];
    EXPECT_EQ(macro.filter, "Macro file (*.m50)|*.m50|F22 macro file(*.m22) |*.m22|F16 macro file(*.m50) |*.m50|FCS "
                            "macro file(*.mdf) |*.mdf|All files (*.*)|*.*");
    EXPECT_EQ(macro.defaultExtension, "m50");
    EXPECT_EQ(macro.suggestedName, "untitled.m50");
}

TEST_F(SaveTest, SaveAsStartsInTheDocumentsFolderWhileNoProgramsFolderIsSet)
{
    openPair();
    t.settings().ProgramFilesPath.clear();
    t.dialogues.filesToSave = {std::nullopt};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(t.dialogues.saveRequests[0].directory, "c:\\tm\\b50progs\\");
}

TEST_F(SaveTest, SaveAsSwapsTheOtherKindsExtensionInTheSuggestedName)
{
    t.editor().joystick.FileName = "odd.m50";
    t.dialogues.filesToSave = {std::nullopt};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(t.dialogues.saveRequests[0].suggestedName, "odd.b50");
}

TEST_F(SaveTest, SaveAsOverAnExistingFileAsksAndNoSavesNothing)
{
    t.files.addFile(mig, "precious");
    t.typeJoystick("mine");
    t.dialogues.filesToSave = {mig};
    t.dialogues.answers = {Answer::No};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(t.lastBox().title, "OK to overwrite exisiting file?");
    EXPECT_EQ(t.lastBox().text, "mig.b50 already exists. Do you want me to overwrite this file?");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Question);
    EXPECT_EQ(t.lastBox().buttons, BoxButtons::YesNo);
    EXPECT_EQ(written(mig), "precious");
    EXPECT_EQ(t.editor().joystick.FileName, "untitled.b50");
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
}

TEST_F(SaveTest, SaveAsOverAnExistingFileWithYesReplacesIt)
{
    t.files.addFile(mig, "old");
    t.typeJoystick("mine");
    t.dialogues.filesToSave = {mig};
    t.dialogues.answers = {Answer::Yes};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(written(mig), "mine");
}

TEST_F(SaveTest, AReadOnlyFileLeadsToSaveAs)
{
    openPair();
    t.files.setReadOnly(mig);
    t.typeJoystick("x");
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\copy.b50"};
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.lastBox().title, "Can't save Read Only file");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Information);
    EXPECT_EQ(t.lastBox().text,
              "mig.b50 is read only. You'll need to save it elsewhere using the Save As routine. I'll "
              "run this for you now.");
    EXPECT_EQ(written("c:\\tm\\b50progs\\copy.b50"), "xBTN S1 x\r\n");
    EXPECT_EQ(written(mig), "BTN S1 x\r\n");
}

TEST_F(SaveTest, AFailedSaveShowsABoxRunsSaveAsAndStaysModified)
{
    openPair();
    t.typeJoystick("x");
    t.files.failWrites(mig, RuntimeError(ErrorCode::DiskFull, "No space left on device", 28));
    t.dialogues.filesToSave = {std::nullopt};
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.lastBox().title, "Error generated when trying to save your file");
    EXPECT_EQ(
        t.lastBox().text,
        "I had a problem saving your file, so let's try and work out what went wrong. I was trying to save your "
        "file with this path: c:\\tm\\b50progs\\mig.b50, and the error message generated by Windows was: No space "
        "left on device. I suggest that you make sure that you've setup your File Locations correctly in "
        "Preferences. In the meantime, I'll take you to the File Save As routine to make sure that your file is "
        "correctly saved.");
    EXPECT_EQ(t.dialogues.saveRequests.size(), 1U);
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
    EXPECT_EQ(t.editor().joystick.FilePath, mig);
    EXPECT_EQ(t.program().shared.errors.ErrorLastDllError, "28");
    EXPECT_EQ(written(mig), "BTN S1 x\r\n");
}

TEST_F(SaveTest, AFailedSaveIsSavedByTheSaveAsThatFollows)
{
    openPair();
    t.typeJoystick("x");
    t.files.failWrites(mig, RuntimeError(ErrorCode::DiskFull, "No space left on device"));
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\other.b50"};
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.editor().joystick.FilePath, "c:\\tm\\b50progs\\other.b50");
    EXPECT_EQ(t.editor().TabStrip1.Tabs(1).Caption.get(), "other.b50");
    EXPECT_EQ(written("c:\\tm\\b50progs\\other.b50"), "xBTN S1 x\r\n");
}

TEST_F(SaveTest, ASaveAsThatFailsKeepsTheNameTheDocumentHad)
{
    openPair();
    t.typeJoystick("x");
    t.files.failWrites("c:\\full\\a.b50", RuntimeError(ErrorCode::DiskFull, "full"));
    t.dialogues.filesToSave = {"c:\\full\\a.b50", std::nullopt};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(t.editor().joystick.FilePath, mig);
    EXPECT_EQ(t.editor().joystick.FileName, "mig.b50");
    EXPECT_EQ(t.editor().TabStrip1.Tabs(1).Caption.get(), "mig.b50");
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
}

TEST_F(SaveTest, AFailedBackupIsNamedAndTheFileStaysSavedWhereItIs)
{
    openPair();
    t.typeJoystick("x");
    t.files.failWrites("c:\\tarvex\\Backup\\mig.b50", RuntimeError(ErrorCode::DiskFull, "No space left on device"));
    t.menus().mnuFileSave.Click();
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.lastBox().title, "Ooops!");
    EXPECT_EQ(t.lastBox().text,
              "mig.b50 itself is saved, so don't panic. It's only its backup that I couldn't write: "
              "c:\\tarvex\\Backup\\mig.b50, and the error message generated by Windows was: No space left on device.");
    EXPECT_TRUE(t.dialogues.saveRequests.empty()) << "there is nothing to save under another name";
    EXPECT_EQ(written(mig), "xBTN S1 x\r\n");
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.editor().joystick.FilePath, mig);
}

TEST_F(SaveTest, AFailedShadowIsNoMatterForTheUser)
{
    openPair();
    t.typeJoystick("x");
    t.files.failWrites("c:\\tarvex\\Rtf\\mig.b50", RuntimeError(ErrorCode::DiskFull, "full"));
    t.menus().mnuFileSave.Click();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_SaveColouredTextJF");
}

TEST_F(SaveTest, ADocumentInTheShadowsOwnFolderStaysPlainText)
{
    t.typeJoystick("mine");
    t.dialogues.filesToSave = {"C:\\Tarvex\\RTF\\x.b50"};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(written("c:\\tarvex\\rtf\\x.b50"), "mine");
    t.files.addFile("c:\\tarvex\\rtf\\x.m50", "");
    t.openBoth("c:\\tarvex\\rtf\\x.b50");
    EXPECT_EQ(t.editor().JoystickText.Text(), "mine");
}

TEST_F(SaveTest, AFailedBackupIsReportedInItsOwnWordsAlsoWhenTheShadowFailsToo)
{
    openPair();
    t.files.failWrites("c:\\tarvex\\Backup\\mig.b50", RuntimeError(ErrorCode::DiskFull, "the backup's words"));
    t.files.failWrites("c:\\tarvex\\Rtf\\mig.b50", RuntimeError(ErrorCode::DiskFull, "the shadow's words"));
    t.menus().mnuFileSave.Click();
    EXPECT_NE(t.lastBox().text.find("the backup's words"), std::string::npos);
}

TEST_F(SaveTest, AMacroFileSavedBySaveAsAfterAFailureIsAnalysedOnce)
{
    openPair();
    int updates = 0;
    t.menus().mnuEditUpdateMacros.handler = [&] { ++updates; };
    t.files.failWrites(migMacros, RuntimeError(ErrorCode::DiskFull, "full"));
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\other.m50"};
    t.editor().TabStrip1.Select(2);
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(updates, 1);
    EXPECT_EQ(t.editor().macro.FileName, "other.m50");
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\third.m50"};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(updates, 2);
}

TEST_F(SaveTest, TheDownloadCommandFollowsTheNewName)
{
    t.typeJoystick("mine");
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\new.b50"};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(t.menus().mnuSendToJoystick.Caption.get(), "&Download new.b50");
    t.menus().mnuFileNewJoystick.Click();
    EXPECT_EQ(t.menus().mnuSendToJoystick.Caption.get(), "&Download untitled.b50");
}

TEST_F(SaveTest, SaveBothSavesEachAndComesBackToTheTab)
{
    openPair();
    t.editor().TabStrip1.Select(2);
    t.typeJoystick("j");
    t.typeMacro("m");
    t.menus().mnuFileSaveBoth.Click();
    EXPECT_EQ(written(mig), "jBTN S1 x\r\n");
    EXPECT_EQ(written(migMacros), "mFire = f\r\n");
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 2);
}

TEST_F(SaveTest, UndoIsKeptByASaveUnlessUndoClearOnSaveAsksOtherwise)
{
    openPair();
    t.typeJoystick("x");
    t.menus().mnuFileSave.Click();
    EXPECT_TRUE(t.menus().mnuEditUndo.Enabled);
    t.settings().UndoClearOnSave = 1;
    t.menus().mnuFileSave.Click();
    EXPECT_FALSE(t.menus().mnuEditUndo.Enabled);
    EXPECT_EQ(t.editor().joystick.Undo.Levels.size(), 1U);
    EXPECT_EQ(t.editor().joystick.Undo.Levels[0].Text.text(), "xBTN S1 x\r\n");
}

TEST_F(SaveTest, ASavedPathEntersThePreviousFiles)
{
    openPair();
    std::string path;
    t.program().operations.UpdateRecentJFMenuList = [&](const std::string& saved) { path = saved; };
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(path, mig);
}

// ---- automatic save ----

TEST_F(SaveTest, TheTimerSavesAfterItsMinutes)
{
    openPair();
    t.settings().AutoSaveTime = 3;
    t.typeJoystick("x");
    t.editor().Timer1.Tick();
    t.editor().Timer1.Tick();
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
    t.editor().Timer1.Tick();
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.editor().AutoSaveMinutes, 0);
    EXPECT_EQ(written(mig), "xBTN S1 x\r\n");
    EXPECT_TRUE(t.files.fileExists("c:\\tarvex\\Backup\\mig.b50"));
    EXPECT_TRUE(t.files.fileExists("c:\\tarvex\\Rtf\\mig.b50"));
}

TEST_F(SaveTest, TheAutomaticSaveWritesAnUntitledDocumentToTheProgramsFolder)
{
    t.typeJoystick("mine");
    AutoSaveFile(t.editor());
    EXPECT_EQ(written("c:\\tm\\b50progs\\untitled.b50"), "mine");
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_TRUE(t.dialogues.saveRequests.empty());
}

TEST_F(SaveTest, TheAutomaticSaveLeavesUnmodifiedDocumentsAlone)
{
    openPair();
    t.typeMacro("A = a\r\n");
    AutoSaveFile(t.editor());
    EXPECT_EQ(written(migMacros), "A = a\r\nFire = f\r\n");
    for (const auto& write : t.files.writes()) EXPECT_EQ(write.path.find("mig.b50"), std::string::npos) << write.path;
}

TEST_F(SaveTest, TheAutomaticSaveDoesNotAnalyseMacros)
{
    openPair();
    bool analysed = false;
    t.menus().mnuEditUpdateMacros.handler = [&] { analysed = true; };
    t.typeMacro("A = a\r\n");
    AutoSaveFile(t.editor());
    EXPECT_FALSE(analysed);
}

TEST_F(SaveTest, AFailedAutomaticSaveStaysModifiedAndSaysSoWithoutABox)
{
    openPair();
    t.typeJoystick("x");
    t.files.failWrites(mig, RuntimeError(ErrorCode::DiskFull, "No space left on device"));
    AutoSaveFile(t.editor());
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
    EXPECT_EQ(t.status(), "mig.b50 couldn't be saved automatically: No space left on device");
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(SaveTest, AnAutomaticSaveWithoutItsBackupSaysSo)
{
    openPair();
    t.typeJoystick("x");
    t.files.failWrites("c:\\tarvex\\Backup\\mig.b50", RuntimeError(ErrorCode::DiskFull, "No space left on device"));
    AutoSaveFile(t.editor());
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.status(), "mig.b50 was saved, but its backup wasn't: No space left on device");
}

TEST_F(SaveTest, TheEmergencySaveSavesBothAndSaysSo)
{
    openPair();
    t.typeJoystick("j");
    t.typeMacro("m");
    EmergencySaveFiles(t.editor());
    EXPECT_EQ(written(mig), "jBTN S1 x\r\n");
    EXPECT_EQ(written(migMacros), "mFire = f\r\n");
    EXPECT_EQ(t.lastBox().title, "Tarvex - Emergency file save procedure executed");
    EXPECT_EQ(
        t.lastBox().text,
        "The save routine was called successfully I think, so you should be alright. However, I recommend you keep "
        "pressing the Yes button to try and get stable control back to Tarvex. If you can get back into Tarvex (it "
        "may take several presses of the Yes button) then you should be OK to continue.");
}

} // namespace
} // namespace tarvex
