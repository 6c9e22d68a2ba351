// Another program writes to a document's file while it is open: nothing that it wrote is lost.

#include "documents/files/outside_change.h"

#include "documents/files/auto_save.h"
#include "lists/games.h"
#include "support/test_program.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace tarvex {
namespace {

constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";
constexpr const char* migMacros = "c:\\tm\\b50progs\\mig.m50";
constexpr const char* keptMig = "c:\\tarvex\\Backup\\mig-outside.b50";
constexpr const char* keptMacros = "c:\\tarvex\\Backup\\mig-outside.m50";
constexpr const char* question = "Whoa ... not so fast!";

struct OutsideChangeTest : testing::Test {
    OutsideChangeTest()
    {
        t.files.addFile(mig, "BTN S1 x\r\n");
        t.files.addFile(migMacros, "Fire = f\r\n");
        t.settings().CheckIdentifyOK = 0;
        t.openBoth(mig);
        t.dialogues.boxes.clear();
    }
    TestProgram t;

    void changeOutside(const std::string& text = "theirs") { t.files.addFile(mig, text); }
    /// How often the user was asked about an outside change.
    std::ptrdiff_t questions() const
    {
        const auto& boxes = t.dialogues.boxes;
        return std::count_if(boxes.begin(), boxes.end(), [](const MessageBox& box) { return box.title == question; });
    }
    void save() { t.menus().mnuFileSave.Click(); }
};

// ---- what counts as a change ----------------------------------------------------------------------------------------

TEST_F(OutsideChangeTest, AFileAsItWasOpenedIsSavedUnasked)
{
    t.typeJoystick("x");
    save();
    t.typeJoystick("y");
    save();
    EXPECT_EQ(t.fileText(mig), "xyBTN S1 x\r\n") << "what the program itself has written is no outside change";
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_FALSE(t.files.fileExists(keptMig));
}

TEST_F(OutsideChangeTest, AFileThatWasOnlyTouchedIsSavedUnasked)
{
    changeOutside("BTN S1 x\r\n"); // written anew, with the same contents
    t.typeJoystick("x");
    save();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.fileText(mig), "xBTN S1 x\r\n");
}

TEST_F(OutsideChangeTest, OtherContentsOfTheSameSizeAreAChange)
{
    changeOutside("BTN S2 x\r\n");
    EXPECT_EQ(outsideChange(t.editor(), t.editor().joystick), OutsideChange::Changed);
}

TEST_F(OutsideChangeTest, OtherContentsUnderTheSameTimeAndSizeAreAChange)
{
    t.files.changeSecretly(mig, "BTN S2 x\r\n"); // as on a disk that keeps whole seconds
    EXPECT_EQ(outsideChange(t.editor(), t.editor().joystick), OutsideChange::Changed);
}

TEST_F(OutsideChangeTest, AFileThatHoldsTheNewTextAlreadyIsSavedUnasked)
{
    changeOutside("xBTN S1 x\r\n");
    t.typeJoystick("x");
    save();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
}

TEST_F(OutsideChangeTest, AFileThatCannotBeReadCountsAsChanged)
{
    t.files.failReads(mig, RuntimeError(ErrorCode::DeviceInputOutput, "Input/output error"));
    EXPECT_EQ(outsideChange(t.editor(), t.editor().joystick), OutsideChange::Changed);
}

TEST_F(OutsideChangeTest, AVanishedFileIsWrittenAgainUnasked)
{
    t.files.removeFile(mig);
    t.typeJoystick("x");
    save();
    EXPECT_TRUE(t.dialogues.boxes.empty()) << "writing it loses nothing";
    EXPECT_EQ(t.fileText(mig), "xBTN S1 x\r\n");
}

TEST_F(OutsideChangeTest, ADirectoryInPlaceOfTheFileIsAFailedSave)
{
    t.files.removeFile(mig);
    t.files.addDirectory(mig);
    t.typeJoystick("x");
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\other.b50"};
    save();
    EXPECT_EQ(t.lastBox().title, "Error generated when trying to save your file");
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\other.b50"), "xBTN S1 x\r\n");
    EXPECT_TRUE(t.files.directoryExists(mig));
}

// ---- saving by hand -------------------------------------------------------------------------------------------------

TEST_F(OutsideChangeTest, TheBoxOffersToSaveToRenameAndToCancel)
{
    changeOutside();
    t.typeJoystick("x");
    t.dialogues.answers = {Answer::Cancel};
    save();
    ASSERT_EQ(questions(), 1);
    EXPECT_EQ(t.lastBox().text,
              "mig.b50 was changed by another program since I opened it, and I'd hate to wipe out somebody's work. If "
              "you save it anyway, I'll put the other version aside first, as\n\n    "
              "c:\\tarvex\\Backup\\mig-outside.b50\n\nOr give yours another name, and you'll have both. Or cancel, and "
              "have a look at what's there.");
    EXPECT_EQ(t.lastBox().buttons, BoxButtons::YesNoCancel);
    EXPECT_EQ(t.lastBox().captions,
              (std::vector<std::string>{"&Save anyway", "Another &name ...", "", "Show the &differences ..."}));
    EXPECT_TRUE(t.lastBox().secondButtonIsDefault) << "Return loses neither version";
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
}

TEST_F(OutsideChangeTest, CancelLeavesTheFileAndTheModifiedDocument)
{
    changeOutside();
    t.typeJoystick("x");
    t.dialogues.answers = {Answer::Cancel};
    save();
    EXPECT_EQ(t.fileText(mig), "theirs");
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
    EXPECT_EQ(t.editor().JoystickText.Text(), "xBTN S1 x\r\n");
    EXPECT_FALSE(t.files.fileExists(keptMig));
    EXPECT_TRUE(t.dialogues.saveRequests.empty());
}

TEST_F(OutsideChangeTest, SaveAnywayKeepsTheOutsideVersionAndAsksNoMore)
{
    changeOutside();
    t.typeJoystick("x");
    t.dialogues.answers = {Answer::Yes};
    save();
    EXPECT_EQ(t.fileText(mig), "xBTN S1 x\r\n");
    EXPECT_EQ(t.fileText(keptMig), "theirs");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\mig.b50"), "xBTN S1 x\r\n");
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    t.typeJoystick("y");
    save();
    EXPECT_EQ(questions(), 1);
}

TEST_F(OutsideChangeTest, AnotherNameKeepsBoth)
{
    changeOutside();
    t.typeJoystick("x");
    t.dialogues.answers = {Answer::No};
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\mine.b50"};
    save();
    EXPECT_EQ(t.fileText(mig), "theirs");
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\mine.b50"), "xBTN S1 x\r\n");
    EXPECT_EQ(t.editor().joystick.FileName, "mine.b50");
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_FALSE(t.files.fileExists(keptMig));
}

TEST_F(OutsideChangeTest, EachOutsideVersionGetsAFileOfItsOwn)
{
    for (const char* theirs : {"first", "second", "third"}) {
        changeOutside(theirs);
        t.typeJoystick("x");
        t.dialogues.answers = {Answer::Yes};
        save();
    }
    EXPECT_EQ(t.fileText(keptMig), "first");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\mig-outside-2.b50"), "second");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\mig-outside-3.b50"), "third");
}

TEST_F(OutsideChangeTest, WhatIsWrittenWhileTheUserThinksIsAskedAboutAndKeptToo)
{
    changeOutside("first");
    t.typeJoystick("x");
    int asked = 0;
    t.dialogues.otherAnswers = [&](const MessageBox&) {
        if (++asked == 1) changeOutside("second");
        return Answer::Yes;
    };
    save();
    EXPECT_EQ(t.fileText(keptMig), "second") << "it was there when the user had answered";
    EXPECT_EQ(t.fileText(mig), "xBTN S1 x\r\n");
    EXPECT_EQ(asked, 1);
}

TEST_F(OutsideChangeTest, AnUnmodifiedDocumentDoesNotReplaceANewerFileUnasked)
{
    changeOutside();
    t.dialogues.answers = {Answer::Cancel};
    save();
    EXPECT_EQ(questions(), 1);
    EXPECT_EQ(t.fileText(mig), "theirs");
}

TEST_F(OutsideChangeTest, AVersionThatCannotBeKeptIsNotOverwritten)
{
    changeOutside();
    t.typeJoystick("x");
    t.files.failWrites(keptMig, RuntimeError(ErrorCode::DiskFull, "No space left on device"));
    t.dialogues.answers = {Answer::Yes};
    t.dialogues.filesToSave = {std::nullopt};
    save();
    EXPECT_EQ(t.fileText(mig), "theirs");
    EXPECT_EQ(t.lastBox().title, "Error generated when trying to save your file");
    EXPECT_NE(t.lastBox().text.find("No space left on device"), std::string::npos);
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
}

TEST_F(OutsideChangeTest, ABackupDirectoryThatIsGoneIsMadeAgain)
{
    t.files.removeDirectory("c:\\tarvex\\Backup");
    changeOutside();
    t.typeJoystick("x");
    t.dialogues.answers = {Answer::Yes};
    save();
    EXPECT_EQ(t.fileText(keptMig), "theirs");
}

TEST_F(OutsideChangeTest, ABackupNeverReplacesAnOutsideVersion)
{
    changeOutside();
    t.typeJoystick("x");
    t.dialogues.answers = {Answer::Yes};
    save();
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\mig-outside.b50"};
    t.menus().mnuFileSaveAs.Click(); // the tab shows that name from now on
    save();
    EXPECT_EQ(t.fileText(keptMig), "theirs");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\mig-outside-2.b50"), "xBTN S1 x\r\n");
}

TEST_F(OutsideChangeTest, SaveAsOntoTheDocumentsOwnChangedFileAsks)
{
    changeOutside();
    t.typeJoystick("x");
    t.dialogues.filesToSave = {"C:\\TM\\B50progs\\Mig.b50"};
    t.dialogues.answers = {Answer::Yes, Answer::Cancel};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(questions(), 1);
    EXPECT_EQ(t.fileText(mig), "theirs");
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
}

TEST_F(OutsideChangeTest, SaveAsOntoAnotherFileAsksOnlyItsOwnQuestion)
{
    t.files.addFile("c:\\tm\\b50progs\\other.b50", "other");
    changeOutside();
    t.typeJoystick("x");
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\other.b50"};
    t.dialogues.answers = {Answer::Yes};
    t.menus().mnuFileSaveAs.Click();
    EXPECT_EQ(questions(), 0);
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\other.b50"), "xBTN S1 x\r\n");
    EXPECT_EQ(t.fileText(mig), "theirs");
}

TEST_F(OutsideChangeTest, SaveBothAsksForEachChangedFile)
{
    changeOutside();
    t.files.addFile(migMacros, "Theirs = t\r\n");
    t.typeJoystick("x");
    t.typeMacro("M = m\r\n");
    t.dialogues.answers = {Answer::Cancel, Answer::Yes};
    t.menus().mnuFileSaveBoth.Click();
    EXPECT_EQ(questions(), 2);
    EXPECT_EQ(t.fileText(mig), "theirs");
    EXPECT_EQ(t.fileText(migMacros), "M = m\r\nFire = f\r\n");
    EXPECT_EQ(t.fileText(keptMacros), "Theirs = t\r\n");
}

// ---- saving on the way to something else ----------------------------------------------------------------------------

TEST_F(OutsideChangeTest, AnExitWhoseSaveIsCancelledKeepsTheProgramOpen)
{
    changeOutside();
    t.typeJoystick("x");
    t.dialogues.answers = {Answer::Yes, Answer::Cancel};
    t.menus().mnuFileExit.Click();
    EXPECT_EQ(t.desktop.quits, 0);
    EXPECT_EQ(questions(), 1);
    EXPECT_EQ(t.lastBox().text, "mig.b50 wasn't saved. Exit program aborted.");
    EXPECT_EQ(t.fileText(mig), "theirs");
}

TEST_F(OutsideChangeTest, ADownloadWhoseSaveIsCancelledAsksWhetherToGoOn)
{
    changeOutside();
    t.typeJoystick("x");
    t.dialogues.answers = {Answer::Cancel, Answer::No};
    t.menus().mnuSendToJoystick.Click();
    EXPECT_EQ(questions(), 1);
    EXPECT_EQ(t.lastBox().title, "Hang on a minute ...");
    EXPECT_EQ(t.fileText(mig), "theirs");
    EXPECT_TRUE(t.processes.starts.empty());
}

TEST_F(OutsideChangeTest, AGameWhoseSaveIsCancelledPutsTheTextAside)
{
    Games& games = t.program().lists.games;
    games.current = {"Falcon", "c:\\falcon\\falcon.exe", "c:\\falcon", ""};
    UpdateGamesMenu(games);
    changeOutside();
    t.typeJoystick("x");
    t.dialogues.answers = {Answer::Cancel};
    t.menus().mnuGameArray[1].Click();
    EXPECT_EQ(questions(), 1);
    EXPECT_EQ(t.fileText(mig), "theirs");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Recover\\mig.b50"), "xBTN S1 x\r\n");
}

// ---- automatic saves ------------------------------------------------------------------------------------------------

TEST_F(OutsideChangeTest, AnAutomaticSaveSkipsAChangedFileAndSaysSo)
{
    changeOutside();
    t.typeJoystick("x");
    AutoSaveFile(t.editor());
    EXPECT_EQ(t.fileText(mig), "theirs");
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.status(), "mig.b50 was changed by another program since I opened it, so I haven't saved it "
                          "automatically. Save it yourself, and I'll ask you what to do.");
}

TEST_F(OutsideChangeTest, AnAutomaticSaveOfTheOtherDocumentGoesOn)
{
    changeOutside();
    t.typeJoystick("x");
    t.typeMacro("M = m\r\n");
    AutoSaveFile(t.editor());
    EXPECT_EQ(t.fileText(mig), "theirs");
    EXPECT_EQ(t.fileText(migMacros), "M = m\r\nFire = f\r\n");
}

TEST_F(OutsideChangeTest, AnAutomaticSaveOfAnUntitledTextKeepsTheOneOfAnotherDay)
{
    t.menus().mnuFileNewJoystick.Click();
    t.files.addFile("c:\\tm\\b50progs\\untitled.b50", "of yesterday");
    t.typeJoystick("mine");
    AutoSaveFile(t.editor());
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\untitled.b50"), "mine");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\untitled-outside.b50"), "of yesterday");
    t.typeJoystick(" still");
    AutoSaveFile(t.editor());
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\untitled.b50"), "mine still");
    EXPECT_FALSE(t.files.fileExists("c:\\tarvex\\Backup\\untitled-outside-2.b50"));
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

// ---- names ----------------------------------------------------------------------------------------------------------

TEST(IsOutsideVersion, KnowsTheNamesThatAreGivenAndNoOthers)
{
    for (const char* name : {"mig-outside.b50", "mig-outside-2.b50", "mig-outside-12.b50", "-outside", "a.b-outside.c"})
        EXPECT_TRUE(isOutsideVersion(name)) << name;
    for (const char* name : {"mig.b50", "outside.b50", "mig-outside-.b50", "mig-outside2.b50", "mig-outside-2-3.b50",
                             "", "12", "-2.b50"}) {
        EXPECT_FALSE(isOutsideVersion(name)) << name;
    }
}

TEST_F(OutsideChangeTest, ACancelledSaveOfTheMacroFileListsNoMacros)
{
    t.editor().TabStrip1.Select(2);
    t.files.addFile(migMacros, "theirs = t\r\n");
    t.typeMacro("x");
    bool updated = false;
    t.menus().mnuEditUpdateMacros.handler = [&] { updated = true; };
    t.dialogues.answers = {Answer::Cancel};
    save();
    EXPECT_FALSE(updated);
    EXPECT_EQ(t.editor().macro.Changed, changed::modified);
}

} // namespace
} // namespace tarvex
