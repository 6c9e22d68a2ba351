// What was typed and not saved comes back, however the program ended.

#include "documents/auto_save.h"
#include "documents/recovery_journal.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* joystickPath = "c:\\tm\\b50progs\\mig.b50";
constexpr const char* macroPath = "c:\\tm\\b50progs\\mig.m50";
constexpr const char* directory = "c:\\tarvex\\Recover";

/// A pair of files open in the program.
struct OpenPair : TestProgram {
    OpenPair()
    {
        files.addFile(joystickPath, "BTN S1 fire\r\n");
        files.addFile(macroPath, "fire = x\r\n");
        openBoth(joystickPath);
        dialogues.boxes.clear();
    }
    Side& joystick() { return editor().joystick; }
    Side& macro() { return editor().macro; }
    /// The program is gone without a word, and is started again.
    void killAndStart(std::deque<Answer> answers = {})
    {
        dialogues.boxes.clear();
        dialogues.answers = std::move(answers);
        start();
    }
    void fifteenSecondsLater() { editor().TimerJournal.Tick(); }
    /// What was written goes to the disk, and the disk says that it has it.
    void diskIsDone()
    {
        fifteenSecondsLater();
        fifteenSecondsLater();
    }
    std::size_t journals() { return files.directoryExists(directory) ? files.list(directory).size() : 0; }
    std::string onlyJournal()
    {
        return journals() == 1 ? std::string(directory) + "\\" + files.list(directory).front() : "(none)";
    }
};

// ---- what is written, and when it goes ----

TEST(Journal, EachEditOfEitherPaneIsInItsFileAtOnce)
{
    OpenPair t;
    EXPECT_EQ(t.journals(), 0U) << "nothing to keep";
    t.typeJoystick("a");
    ASSERT_EQ(t.journals(), 1U);
    const std::size_t begun = t.fileText(t.onlyJournal()).size();
    t.typeJoystick("b");
    const std::size_t grown = t.fileText(t.onlyJournal()).size() - begun;
    EXPECT_GT(grown, 0U);
    EXPECT_LT(grown, 60U) << "some tens of bytes";
    t.typeMacro("c");
    EXPECT_EQ(t.journals(), 2U);
}

TEST(Journal, TellsNamePathSizeAndCheckSumOfTheFile)
{
    OpenPair t;
    t.typeMacro("c");
    Journal journal;
    ASSERT_EQ(readJournal(t.fileText(t.onlyJournal()), journal), JournalState::Readable);
    EXPECT_EQ(journal.start.tab, 2);
    EXPECT_EQ(journal.start.path, macroPath);
    EXPECT_EQ(journal.start.name, "mig.m50");
    EXPECT_EQ(journal.start.partnerPath, joystickPath);
    EXPECT_EQ(journal.start.file, sumOf("fire = x\r\n"));
    EXPECT_EQ(journal.text, "cfire = x\r\n");
}

TEST(Journal, ALookAtTheTextWritesNothing)
{
    OpenPair t;
    t.menus().mnuViewApplyColourBothFiles.Click();
    t.menus().mnuViewReformat.Click();
    t.editor().TabStrip1.Select(2);
    EXPECT_EQ(t.journals(), 0U);
}

TEST(Journal, IsRemovedAtSave)
{
    OpenPair t;
    t.typeJoystick("a");
    t.typeMacro("b");
    t.menus().mnuFileSaveBoth.Click();
    EXPECT_EQ(t.journals(), 0U);
    EXPECT_FALSE(t.editor().TimerJournal.Tick == nullptr);
    t.editor().TimerJournal.Tick();
    EXPECT_FALSE(t.editor().TimerJournal.Enabled);
}

TEST(Journal, IsRemovedAtTheAutomaticSave)
{
    OpenPair t;
    t.typeJoystick("a");
    AutoSaveFile(t.editor());
    EXPECT_EQ(t.journals(), 0U);
}

TEST(Journal, IsRemovedAtClose)
{
    OpenPair t;
    t.typeJoystick("a");
    t.dialogues.answers = {Answer::No};
    t.menus().mnuFileClose.Click();
    EXPECT_EQ(t.journals(), 0U);
}

TEST(Journal, OfADocumentThatTheUserKeepsStays)
{
    OpenPair t;
    t.typeJoystick("a");
    t.dialogues.answers = {Answer::Cancel};
    t.menus().mnuFileClose.Click();
    EXPECT_EQ(t.journals(), 1U);
    t.dialogues.answers = {Answer::No};
    t.dialogues.filesToOpen = {std::nullopt};
    t.menus().mnuFileJoystickLoad.Click();
    EXPECT_EQ(t.journals(), 1U) << "no other file was opened after all";
}

TEST(Journal, IsRemovedWhenAnotherFileIsOpened)
{
    OpenPair t;
    t.typeJoystick("a");
    t.files.addFile("c:\\tm\\b50progs\\su27.b50", "BTN S2 b");
    t.dialogues.answers = {Answer::No};
    t.dialogues.filesToOpen = {"c:\\tm\\b50progs\\su27.b50"};
    t.menus().mnuFileJoystickLoad.Click();
    EXPECT_EQ(t.journals(), 0U);
}

TEST(Journal, IsRemovedAtAnOrderlyExitAlsoAfterNo)
{
    OpenPair t;
    t.typeJoystick("a");
    t.typeMacro("b");
    t.dialogues.answers = {Answer::No, Answer::No};
    EXPECT_TRUE(t.program().exit());
    EXPECT_EQ(t.journals(), 0U);
    EXPECT_FALSE(t.editor().TimerJournal.Enabled);
    t.killAndStart();
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST(Journal, StaysWhileTheExitIsCancelled)
{
    OpenPair t;
    t.typeJoystick("a");
    t.typeMacro("b");
    t.dialogues.answers = {Answer::No, Answer::Cancel};
    EXPECT_FALSE(t.program().exit());
    EXPECT_EQ(t.journals(), 2U);
}

TEST(Journal, GoesToTheDiskWithinFifteenSecondsAndTheTimerRestsThen)
{
    OpenPair t;
    EXPECT_EQ(t.editor().TimerJournal.Interval, 15000);
    EXPECT_FALSE(t.editor().TimerJournal.Enabled);
    t.typeJoystick("a");
    EXPECT_TRUE(t.editor().TimerJournal.Enabled);
    EXPECT_EQ(t.files.syncs(), 0) << "a key doesn't wait for the disk";
    t.editor().TimerJournal.Tick();
    EXPECT_EQ(t.files.syncs(), 1);
    EXPECT_TRUE(t.editor().TimerJournal.Enabled) << "to see how that ends";
    t.fifteenSecondsLater();
    EXPECT_EQ(t.files.syncs(), 1);
    EXPECT_FALSE(t.editor().TimerJournal.Enabled) << "idle, the program uses no processor time";
    t.typeJoystick("b");
    EXPECT_TRUE(t.editor().TimerJournal.Enabled);
}

TEST(Journal, IsLookedAfterUntilTheDiskHasIt)
{
    OpenPair t;
    t.files.holdSyncs(true);
    t.typeJoystick("a");
    for (int i = 0; i < 3; ++i) t.fifteenSecondsLater();
    EXPECT_TRUE(t.editor().TimerJournal.Enabled);
    EXPECT_EQ(t.files.syncs(), 1) << "one at a time";
    t.typeJoystick("b");
    t.files.holdSyncs(false);
    t.fifteenSecondsLater();
    EXPECT_EQ(t.files.syncs(), 2) << "what was written meanwhile";
    EXPECT_TRUE(t.editor().TimerJournal.Enabled);
    t.fifteenSecondsLater();
    EXPECT_FALSE(t.editor().TimerJournal.Enabled);
}

TEST(Journal, ThatTheDiskDidNotTakeIsToldOnceAndWrittenAnew)
{
    OpenPair t;
    t.files.failSyncs(RuntimeError(ErrorCode::DeviceInputOutput, "Input/output error"));
    t.typeJoystick("a");
    const std::string first = t.onlyJournal();
    t.fifteenSecondsLater();
    EXPECT_EQ(t.status().find("Input/output error"), std::string::npos);
    t.fifteenSecondsLater();
    EXPECT_EQ(t.status(),
              "I can't take notes of what you type, so you'd better save it now and then: Input/output error");
    t.editor().status("something else");
    t.typeJoystick("b");
    for (int i = 0; i < 5; ++i) t.fifteenSecondsLater();
    EXPECT_EQ(t.status(), "something else");
    EXPECT_TRUE(t.editor().TimerJournal.Enabled);
    EXPECT_EQ(t.journals(), 2U) << "the first and the last";
    EXPECT_TRUE(t.files.fileExists(first));
    t.files.failSyncs(std::nullopt);
    t.diskIsDone();
    EXPECT_FALSE(t.editor().TimerJournal.Enabled);
    EXPECT_FALSE(t.files.fileExists(first));
    EXPECT_EQ(t.journals(), 1U);
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "abBTN S1 fire\r\n");
    EXPECT_EQ(t.lastBox().text.find("older notes"), std::string::npos);
}

// ---- one in another's place ----

TEST(Journal, WhosePlaceIsTakenStaysUntilTheDiskHasTheNewOne)
{
    OpenPair t;
    t.typeJoystick("a");
    t.diskIsDone();
    const std::string older = t.onlyJournal();
    t.files.holdSyncs(true);
    beginJournal(t.editor(), t.joystick(), t.joystick().Journal.Number);
    t.diskIsDone();
    EXPECT_TRUE(t.files.fileExists(older)) << "the disk is busy yet";
    EXPECT_EQ(t.journals(), 2U);
    t.files.holdSyncs(false);
    t.fifteenSecondsLater();
    EXPECT_FALSE(t.files.fileExists(older));
    EXPECT_EQ(t.journals(), 1U);
}

TEST(Journal, WhosePlaceIsTakenTwiceBeforeTheDiskHasOneStaysBesideTheLastOnly)
{
    OpenPair t;
    t.typeJoystick("a");
    t.diskIsDone();
    const std::string older = t.onlyJournal();
    beginJournal(t.editor(), t.joystick(), t.joystick().Journal.Number);
    beginJournal(t.editor(), t.joystick(), t.joystick().Journal.Number);
    EXPECT_TRUE(t.files.fileExists(older));
    EXPECT_EQ(t.journals(), 2U);
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "aBTN S1 fire\r\n");
    EXPECT_EQ(t.lastBox().text.find("older notes"), std::string::npos) << "the last tells whose place it has";
}

TEST(Journal, IsRemovedAtSaveWithTheOneWhosePlaceItTook)
{
    OpenPair t;
    t.typeJoystick("a");
    beginJournal(t.editor(), t.joystick(), t.joystick().Journal.Number);
    ASSERT_EQ(t.journals(), 2U);
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.journals(), 0U);
    t.diskIsDone();
    EXPECT_EQ(t.journals(), 0U);
}

TEST(Journal, IsClosedOnceTheDiskIsDoneWithItSoThatNoKeyWaitsForThat)
{
    OpenPair t;
    t.typeJoystick("a");
    t.files.holdSyncs(true);
    t.fifteenSecondsLater();
    beginJournal(t.editor(), t.joystick(), t.joystick().Journal.Number);
    EXPECT_EQ(t.files.growing(), 2);
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.files.growing(), 1) << "the disk hasn't been asked to take the second";
    t.fifteenSecondsLater();
    EXPECT_EQ(t.files.growing(), 1);
    EXPECT_TRUE(t.editor().TimerJournal.Enabled);
    t.files.holdSyncs(false);
    t.fifteenSecondsLater();
    EXPECT_EQ(t.files.growing(), 0);
    EXPECT_FALSE(t.editor().TimerJournal.Enabled);
}

TEST(Journal, IsWrittenAnewWhenItHasOutgrownTheText)
{
    OpenPair t;
    std::size_t largest = 0;
    std::string names;
    const std::string line(2000, 'x');
    for (int i = 0; i < 1000; ++i) {
        t.editor().JoystickText.userEdit(0, i == 0 ? 0 : 2000, line.substr(0, 1999) + static_cast<char>('a' + i % 26));
        t.diskIsDone();
        ASSERT_EQ(t.journals(), 1U);
        if (names.find(t.onlyJournal()) == std::string::npos) names += t.onlyJournal();
        largest = std::max(largest, t.fileText(t.onlyJournal()).size());
    }
    EXPECT_LT(largest, (std::size_t{1} << 20) + 30000);
    EXPECT_NE(names.find("2.journal"), std::string::npos) << names;
    const std::string text = t.editor().JoystickText.Text();
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), text);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 fire\r\n");
}

// ---- a journal that can't be written ----

TEST(Journal, ThatCannotBeWrittenDisturbsNobodyAndIsToldOnce)
{
    OpenPair t;
    t.files.failAppends(RuntimeError(ErrorCode::DiskFull, "No space left on device"));
    t.typeJoystick("a");
    EXPECT_EQ(t.editor().JoystickText.Text(), "aBTN S1 fire\r\n");
    EXPECT_EQ(t.status(), "I can't take notes of what you type, so you'd better save it now and then: No space left on "
                          "device");
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.journals(), 0U);
    t.editor().status("something else");
    t.typeJoystick("b");
    t.typeMacro("c");
    t.editor().TimerJournal.Tick();
    EXPECT_EQ(t.status(), "something else");
    EXPECT_TRUE(t.editor().TimerJournal.Enabled) << "to try again";
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.fileText(joystickPath), "abBTN S1 fire\r\n");
}

TEST(Journal, ThatCouldNotBeWrittenIsTriedAgainLater)
{
    OpenPair t;
    t.files.failAppends(RuntimeError(ErrorCode::DiskFull, "No space left on device"));
    t.typeJoystick("a");
    t.files.failAppends(std::nullopt);
    t.typeJoystick("b");
    EXPECT_EQ(t.journals(), 0U);
    t.editor().TimerJournal.Tick();
    EXPECT_EQ(t.journals(), 1U);
    t.typeJoystick("c");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "abcBTN S1 fire\r\n");
}

TEST(Journal, WhoseLastRecordIsHalfThereGivesWayToAWholeOne)
{
    OpenPair t;
    t.typeJoystick("a");
    t.files.failAppends(RuntimeError(ErrorCode::DiskFull, "No space left on device"), 20);
    t.typeJoystick("b");
    EXPECT_EQ(t.journals(), 1U) << "what is there of it is worth keeping";
    t.files.failAppends(std::nullopt);
    t.diskIsDone();
    EXPECT_EQ(t.journals(), 1U);
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "abBTN S1 fire\r\n");
}

TEST(Journal, OfADocumentSavedMeanwhileIsNotTriedAgain)
{
    OpenPair t;
    t.files.failAppends(RuntimeError(ErrorCode::DiskFull, "No space left on device"));
    t.typeJoystick("a");
    t.menus().mnuFileSave.Click();
    t.files.failAppends(std::nullopt);
    t.editor().TimerJournal.Tick();
    EXPECT_EQ(t.journals(), 0U);
    EXPECT_FALSE(t.editor().TimerJournal.Enabled);
}

// ---- bringing back ----

TEST(Recovery, BringsBackBothPanesModifiedAndUndoable)
{
    OpenPair t;
    t.typeJoystick("Rem new\r\n");
    t.typeMacro("gear = g\r\n");
    t.killAndStart({Answer::Yes});
    ASSERT_EQ(t.dialogues.boxes.size(), 1U) << "one box for both";
    EXPECT_EQ(t.lastBox().title, "Phew ... nothing's lost!");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Question);
    EXPECT_EQ(t.lastBox().buttons, BoxButtons::YesNo);
    EXPECT_NE(t.lastBox().text.find("\n    mig.b50\n    mig.m50\n"), std::string::npos) << t.lastBox().text;

    EXPECT_EQ(t.editor().JoystickText.Text(), "Rem new\r\nBTN S1 fire\r\n");
    EXPECT_EQ(t.editor().MacroText.Text(), "gear = g\r\nfire = x\r\n");
    EXPECT_EQ(t.joystick().Changed, changed::modified);
    EXPECT_EQ(t.macro().Changed, changed::modified);
    EXPECT_EQ(t.editor().pair.JoystickFilePath, joystickPath);
    EXPECT_EQ(t.editor().pair.MacroFilePath, macroPath);
    EXPECT_EQ(t.editor().tabCaption(t.macro()), "mig.m50");
    EXPECT_EQ(t.fileText(joystickPath), "BTN S1 fire\r\n") << "nothing is saved by itself";
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);

    EXPECT_EQ(t.menus().mnuEditUndo.Caption, "&Undo (1)");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 fire\r\n");
    t.menus().mnuEditRedo.Click();
    EXPECT_EQ(t.editor().JoystickText.Text(), "Rem new\r\nBTN S1 fire\r\n");
    t.menus().mnuFileSaveBoth.Click();
    EXPECT_EQ(t.fileText(joystickPath), "Rem new\r\nBTN S1 fire\r\n");
    EXPECT_EQ(t.fileText(macroPath), "gear = g\r\nfire = x\r\n");
    EXPECT_EQ(t.journals(), 0U);
}

TEST(Recovery, TextThatWasBroughtBackIsKeptAsWellAsNew)
{
    OpenPair t;
    t.typeJoystick("1");
    const std::string first = t.onlyJournal();
    t.killAndStart({Answer::Yes});
    EXPECT_TRUE(t.files.fileExists(first)) << "until the disk has the new one";
    EXPECT_EQ(t.journals(), 2U);
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "1BTN S1 fire\r\n");
    t.typeJoystick("2");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "12BTN S1 fire\r\n");
    EXPECT_EQ(t.lastBox().text.find("older notes"), std::string::npos);
    t.diskIsDone();
    EXPECT_EQ(t.journals(), 1U);
}

TEST(Recovery, OpensTheFileThatStoodBesideIt)
{
    OpenPair t;
    t.typeMacro("x");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().MacroText.Text(), "xfire = x\r\n");
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 fire\r\n");
    EXPECT_EQ(t.editor().pair.JoystickFilePath, joystickPath);
    EXPECT_EQ(t.joystick().Changed, changed::saved);
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 2) << "where there is something to save";
}

TEST(Recovery, OpensTheFileThatStoodBesideItASecondTimeToo)
{
    OpenPair t;
    t.typeMacro("x");
    t.killAndStart({Answer::Yes});
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 fire\r\n");
    t.typeJoystick("y");
    t.killAndStart({Answer::Yes});
    t.editor().TabStrip1.Select(2);
    t.menus().mnuFileSave.Click();
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "yBTN S1 fire\r\n");
    EXPECT_EQ(t.editor().MacroText.Text(), "xfire = x\r\n");
}

TEST(Recovery, OpensTheFileThatCameToStandBesideItLater)
{
    OpenPair t;
    t.typeMacro("x");
    t.files.addFile("c:\\tm\\b50progs\\su27.b50", "BTN S2 b");
    t.dialogues.filesToOpen = {"c:\\tm\\b50progs\\su27.b50"};
    t.menus().mnuFileJoystickLoad.Click();
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S2 b");
    t.menus().mnuFileNewJoystick.Click();
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "");
    EXPECT_EQ(t.editor().MacroText.Text(), "xfire = x\r\n");
}

TEST(Recovery, AnUntitledDocumentComesBackUntitled)
{
    TestProgram t;
    t.typeJoystick("BTN S1 a");
    t.dialogues.answers = {Answer::Yes};
    t.start();
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 a");
    EXPECT_EQ(t.editor().pair.JoystickFileName, "untitled.b50");
    EXPECT_EQ(t.editor().pair.JoystickFilePath, "c:\\tm\\b50progs\\untitled.b50");
    EXPECT_EQ(t.editor().pair.JoystickChanged, changed::modified);
    EXPECT_FALSE(t.menus().mnuViewMacros.Checked) << "no macro file was opened";
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\new.b50"};
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\new.b50"), "BTN S1 a");
}

TEST(Recovery, AFileThatHasChangedSinceIsLeftAloneAndTheTextGetsANewName)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.files.addFile(joystickPath, "BTN S1 theirs\r\n");
    t.killAndStart({Answer::Yes});
    EXPECT_NE(t.lastBox().text.find("untitled-mig.b50"), std::string::npos);
    EXPECT_EQ(t.editor().JoystickText.Text(), "mine BTN S1 fire\r\n");
    EXPECT_EQ(t.editor().pair.JoystickFileName, "untitled-mig.b50");
    EXPECT_EQ(t.editor().tabCaption(t.joystick()), "untitled-mig.b50");
    EXPECT_EQ(t.joystick().Changed, changed::modified);
    AutoSaveFile(t.editor());
    EXPECT_EQ(t.fileText(joystickPath), "BTN S1 theirs\r\n");
    t.typeJoystick("!");
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\mine.b50"};
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.dialogues.saveRequests.size(), 1U) << "asks for a name";
    EXPECT_EQ(t.fileText(joystickPath), "BTN S1 theirs\r\n");
}

TEST(Recovery, AFileThatIsGoneOrUnreadableCountsAsChanged)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.typeMacro("too ");
    t.files.removeFile(joystickPath);
    t.files.failReads(macroPath, RuntimeError(ErrorCode::PathFileAccess, "Path/File access error"));
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().pair.JoystickFileName, "untitled-mig.b50");
    EXPECT_EQ(t.editor().pair.MacroFileName, "untitled-mig.m50");
    EXPECT_EQ(t.editor().MacroText.Text(), "too fire = x\r\n");
}

TEST(Recovery, TheNewNameIsNoFilesName)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.files.addFile(joystickPath, "theirs");
    t.files.addFile("c:\\tm\\b50progs\\untitled-mig.b50", "of another day");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().pair.JoystickFilePath, "c:\\tm\\b50progs\\untitled-mig-2.b50");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "mine BTN S1 fire\r\n") << "a second time, too";
    EXPECT_EQ(t.editor().pair.JoystickFilePath, "c:\\tm\\b50progs\\untitled-mig-2.b50");
}

TEST(Recovery, AnUntitledTextIsNotPutOverAFileOfThatNameMadeSince)
{
    TestProgram t;
    t.typeJoystick("mine");
    t.files.addFile("c:\\tm\\b50progs\\untitled.b50", "theirs");
    t.dialogues.answers = {Answer::Yes};
    t.start();
    EXPECT_EQ(t.editor().pair.JoystickFileName, "untitled-2.b50");
    AutoSaveFile(t.editor());
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\untitled.b50"), "theirs");
}

TEST(Recovery, AfterNoTheTextLiesInTheFolderAndIsNotOfferedAgain)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.typeMacro("too ");
    t.killAndStart({Answer::No});
    EXPECT_NE(t.lastBox().text.find("c:\\tarvex\\Recover"), std::string::npos);
    EXPECT_EQ(t.editor().JoystickText.Text(), "");
    EXPECT_EQ(t.joystick().Changed, changed::noText);
    EXPECT_EQ(t.fileText("c:\\tarvex\\Recover\\mig.b50"), "mine BTN S1 fire\r\n");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Recover\\mig.m50"), "too fire = x\r\n");
    EXPECT_EQ(t.journals(), 2U) << "those texts and nothing else";
    t.killAndStart();
    EXPECT_TRUE(t.dialogues.boxes.empty());

    t.openBoth(joystickPath);
    t.typeJoystick("again ");
    t.killAndStart({Answer::No});
    EXPECT_EQ(t.fileText("c:\\tarvex\\Recover\\mig.b50"), "mine BTN S1 fire\r\n");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Recover\\mig-2.b50"), "again BTN S1 fire\r\n");
}

TEST(Recovery, AfterNoATextThatCannotBeWrittenIsOfferedAgain)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.files.failWrites("c:\\tarvex\\Recover\\mig.b50", RuntimeError(ErrorCode::DiskFull, "full"));
    t.killAndStart({Answer::No});
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "mine BTN S1 fire\r\n");
}

TEST(Recovery, IsNotOfferedForATextThatReachedItsFile)
{
    OpenPair t;
    t.typeJoystick("x");
    const std::string name = t.onlyJournal();
    const std::string journal = t.fileText(name);
    t.menus().mnuFileSave.Click();
    t.files.addFile(name, journal); // killed between the save and the removal
    t.killAndStart();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.journals(), 0U);
}

TEST(Recovery, IsNotOfferedForEditsThatWereTakenBack)
{
    OpenPair t;
    t.pressKeys(t.editor().JoystickText, "x\b");
    EXPECT_EQ(t.joystick().Changed, changed::modified);
    t.killAndStart();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.journals(), 0U);
}

TEST(Recovery, EditsTakenBackInATextThatStandsInNoFileAreNoReasonToDropIt)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.files.addFile(joystickPath, "BTN S1 theirs\r\n");
    t.killAndStart({Answer::Yes});
    t.menus().mnuEditUndo.Click();
    ASSERT_EQ(t.editor().JoystickText.Text(), "BTN S1 fire\r\n");
    t.killAndStart({Answer::Yes});
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 fire\r\n");
    EXPECT_EQ(t.editor().pair.JoystickFileName, "untitled-mig.b50");
    EXPECT_EQ(t.joystick().Changed, changed::modified);
}

TEST(Recovery, IsNotOfferedForANewDocumentThatIsEmptyAgain)
{
    TestProgram t;
    t.pressKeys(t.editor().JoystickText, "x\b");
    ASSERT_FALSE(t.files.list(directory).empty());
    t.start();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_TRUE(t.files.list(directory).empty());
}

TEST(Recovery, UndoneTextComesBackUndone)
{
    OpenPair t;
    t.typeJoystick("a ");
    t.typeJoystick("b ");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(t.editor().JoystickText.Text(), "a BTN S1 fire\r\n");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "a BTN S1 fire\r\n");
}

TEST(Recovery, UndoBehindASaveComesBackToo)
{
    OpenPair t;
    t.settings().UndoClearOnSave = 0;
    t.typeJoystick("a ");
    t.menus().mnuFileSave.Click();
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(t.journals(), 1U);
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 fire\r\n");
    EXPECT_EQ(t.joystick().Changed, changed::modified);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(t.editor().JoystickText.Text(), "a BTN S1 fire\r\n") << "what the file has";
}

TEST(Recovery, ColoursTheTextWhenOpenedFilesAre)
{
    OpenPair t;
    ASSERT_EQ(t.settings().ApplyColoursOnFileOpen, 1);
    t.typeJoystick("BTN S2 x\r\n");
    t.killAndStart({Answer::Yes});
    const Pane& pane = t.editor().JoystickText;
    const Colour statement = pane.formatAt(0).colour;
    EXPECT_NE(statement, 0);
    EXPECT_EQ(pane.formatAt(10).colour, statement) << "old and new text alike";
    EXPECT_EQ(t.joystick().Changed, changed::modified);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(pane.Text(), "BTN S1 fire\r\n");
    EXPECT_EQ(pane.formatAt(0).colour, statement);
    t.menus().mnuEditRedo.Click();
    EXPECT_EQ(pane.formatAt(0).colour, statement);
}

TEST(Recovery, ListsTheMacrosOfTheFile)
{
    OpenPair t;
    t.typeMacro("gear = g\r\n");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.status(panel::macroFile), "mig.m50");
    EXPECT_TRUE(t.menus().mnuViewMacros.Checked);
    ASSERT_EQ(t.editor().FrameMacros.List1[0].Items.get().size(), 1U) << "as they are in the file";
}

TEST(Recovery, TicksTheMacrosInUseWhenOpeningBothFilesWould)
{
    OpenPair t;
    t.setIni("Miscellaneous", "CheckIdentifyOK", "1");
    t.typeJoystick("x");
    t.killAndStart({Answer::Yes});
    ASSERT_EQ(t.settings().CheckIdentifyOK, 1);
    ASSERT_EQ(t.editor().FrameMacros.List1[0].Items.get().size(), 1U);
    EXPECT_TRUE(t.editor().FrameMacros.List1[0].Items.get()[0].Selected);
}

// ---- and the file of the command line ----

TEST(Recovery, TheFileOnTheCommandLineIsNotOpenedOverItsOwnText)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.platform.commandLine = "C:\\TM\\B50PROGS\\MIG.B50";
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.editor().JoystickText.Text(), "mine BTN S1 fire\r\n");
    EXPECT_EQ(t.editor().MacroText.Text(), "fire = x\r\n");
}

TEST(Recovery, AnotherFileOnTheCommandLineTakesItsPlaceOnlyAfterTheQuestion)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.files.addFile("c:\\tm\\b50progs\\su27.b50", "BTN S2 b");
    t.files.addFile("c:\\tm\\b50progs\\su27.m50", "");
    t.platform.commandLine = "c:\\tm\\b50progs\\su27.b50";
    t.killAndStart({Answer::Yes, Answer::Cancel});
    EXPECT_EQ(t.lastBox().title, " Save mig.b50 now?");
    EXPECT_EQ(t.editor().JoystickText.Text(), "mine BTN S1 fire\r\n");
    t.killAndStart({Answer::Yes, Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S2 b");
    EXPECT_EQ(t.fileText(joystickPath), "mine BTN S1 fire\r\n");
}

TEST(Recovery, AfterNoTheCommandLineIsFollowed)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.platform.commandLine = joystickPath;
    t.killAndStart({Answer::No});
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 fire\r\n");
    EXPECT_EQ(t.joystick().Changed, changed::saved);
}

TEST(Recovery, AFavouriteMarkedForLoadingIsNotOpenedOverIt)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.setIni("Favourites", "FavNameToLoad", "Su");
    t.setIni("Favourites", "FavLoadOnStart", "1");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "mine BTN S1 fire\r\n");
    EXPECT_EQ(t.dialogues.boxes.size(), 1U);
}

// ---- journals that aren't as they should be ----

TEST(Recovery, ATornLastRecordIsDropped)
{
    OpenPair t;
    t.typeJoystick("1");
    t.typeJoystick("2");
    const std::string name = t.onlyJournal();
    std::string bytes = t.fileText(name);
    bytes.resize(bytes.size() - 3);
    t.files.addFile(name, bytes);
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "1BTN S1 fire\r\n");
}

TEST(Recovery, AJournalWithoutATextIsSweptInSilence)
{
    TestProgram t(false);
    t.files.addFile("c:\\tarvex\\Recover\\3.journal", "");
    t.files.addFile("c:\\tarvex\\Recover\\4.journal", std::string(journalMark()) + "S1234");
    t.start();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_TRUE(t.files.list("c:\\tarvex\\Recover").empty());
}

TEST(Recovery, WhatIsNoJournalOfOursIsLeftAlone)
{
    TestProgram t(false);
    t.files.addFile("c:\\tarvex\\Recover\\3.journal", "Dear diary");
    t.files.addFile("c:\\tarvex\\Recover\\4.journal", "Tarvex journal 2\x1A\nfrom the future");
    t.files.addFile("c:\\tarvex\\Recover\\notes.journal", "");
    t.files.addFile("c:\\tarvex\\Recover\\99999999999999999999999.journal", "");
    t.start();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.files.list("c:\\tarvex\\Recover").size(), 4U);
    t.typeJoystick("x");
    EXPECT_TRUE(t.files.fileExists("c:\\tarvex\\Recover\\5.journal")) << "and not written over";
}

TEST(Recovery, AJournalThatCannotBeReadStaysForAnotherTime)
{
    OpenPair t;
    t.typeJoystick("x");
    const std::string name = t.onlyJournal();
    t.files.failReads(name, RuntimeError(ErrorCode::PathFileAccess, "Path/File access error"));
    t.killAndStart();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    t.files.failReads(name, std::nullopt);
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "xBTN S1 fire\r\n");
}

TEST(Recovery, AJournalThatTookTheOthersPlaceCountsAlone)
{
    OpenPair t;
    t.typeJoystick("1");
    const std::string older = t.onlyJournal();
    const std::string bytes = t.fileText(older);
    beginJournal(t.editor(), t.joystick(), t.joystick().Journal.Number);
    t.typeJoystick("2");
    ASSERT_EQ(t.fileText(older), bytes);
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "12BTN S1 fire\r\n");
    t.diskIsDone();
    EXPECT_EQ(t.journals(), 1U);
}

TEST(Recovery, AnEmptyJournalThatWasToTakeAnothersPlaceLeavesTheOther)
{
    OpenPair t;
    t.typeJoystick("1");
    const std::string older = t.onlyJournal();
    beginJournal(t.editor(), t.joystick(), t.joystick().Journal.Number);
    const std::string newer = journalPath(t.editor(), t.joystick().Journal.Number);
    ASSERT_TRUE(t.files.fileExists(older));
    t.files.addFile(newer, ""); // the power failed, and the disk had no more of it than its name
    t.killAndStart({Answer::Yes});
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.editor().JoystickText.Text(), "1BTN S1 fire\r\n");
}

TEST(Recovery, ATextThatThePaneCannotTakeAsItIsStaysInItsJournal)
{
    TestProgram t(false);
    std::uint64_t chain = 0;
    const std::string bytes = journalStart({.tab = 1,
                                            .replaces = 0,
                                            .path = "c:\\tm\\b50progs\\odd.b50",
                                            .name = "odd.b50",
                                            .partnerPath = {},
                                            .file = {},
                                            .base = "",
                                            .edit = {0, 0, "a line end of another system\nb"}},
                                           chain);
    t.files.addFile("c:\\tarvex\\Recover\\1.journal", bytes);
    t.dialogues.answers = {Answer::Yes};
    t.start();
    ASSERT_GE(t.dialogues.boxes.size(), 2U);
    EXPECT_EQ(t.dialogues.boxes[1].title, "That's not quite it ...");
    EXPECT_EQ(t.dialogues.boxes[1].icon, BoxIcon::Exclamation);
    EXPECT_NE(t.dialogues.boxes[1].text.find("odd.b50"), std::string::npos);
    for (int i = 0; i < 3; ++i) t.editor().TimerJournal.Tick();
    t.editor().joystick.pane.userEdit(0, 0, "x");
    t.dialogues.answers = {Answer::No};
    t.menus().mnuFileNewJoystick.Click();
    EXPECT_EQ(t.fileText("c:\\tarvex\\Recover\\1.journal"), bytes) << "not the one of the document that is there";
    t.dialogues.boxes.clear();
    t.dialogues.answers = {Answer::No};
    t.start();
    EXPECT_EQ(t.fileText("c:\\tarvex\\Recover\\odd.b50"), "a line end of another system\nb");
}

TEST(Recovery, OfTwoForOnePaneTheNewestComesBackAndTheOtherIsPutAside)
{
    OpenPair t;
    t.typeJoystick("new");
    std::uint64_t chain = 0;
    t.files.addFile(std::string(directory) + "\\1.journal", journalStart({.tab = 1,
                                                                          .replaces = 0,
                                                                          .path = "c:\\a\\old.b50",
                                                                          .name = "..\\..\\old.b50",
                                                                          .partnerPath = {},
                                                                          .file = {},
                                                                          .base = "",
                                                                          .edit = {0, 0, "old text"}},
                                                                         chain));
    t.editor().LastJournal = 5;
    beginJournal(t.editor(), t.joystick(), 0);
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "newBTN S1 fire\r\n");
    EXPECT_NE(t.lastBox().text.find("older notes"), std::string::npos);
    EXPECT_EQ(t.fileText("c:\\tarvex\\Recover\\old.b50"), "old text") << "and in no other folder";
}

} // namespace
} // namespace tarvex
