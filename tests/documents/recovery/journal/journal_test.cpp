// Unsaved typing is written to a journal.

#include "documents/files/auto_save.h"
#include "documents/pair/loading.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "documents/recovery/open_pair.h"
#include "support/random_seed.h"

#include <gtest/gtest.h>
#include <random>

namespace tarvex {
namespace {

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

TEST(Journal, HoldsNamePathSizeAndChecksumOfTheFile)
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

TEST(Journal, WhoseSyncFailedIsReportedOnceAndWrittenAnew)
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
    EXPECT_EQ(t.lastBox().text.find("older notes"), std::string::npos) << "the last one names whose place it has";
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

TEST(Journal, HoldsTheTextAfterAnyEditsThatWereWrittenDownTogether)
{
    std::mt19937 random(randomSeed());
    OpenPair t;
    t.typeJoystick("begun");
    Pane& pane = t.editor().JoystickText;
    const auto below = [&](std::size_t bound) { return static_cast<std::int64_t>(random() % bound); };
    for (int round = 0; round < 300; ++round) {
        {
            const Loading loading(t.program().shared); // the program writes, and the user's next key notes all of it
            for (std::int64_t edits = below(4); edits > 0; --edits) {
                pane.setSelStart(below(pane.TextLength() + 1));
                pane.setSelLength(below(6));
                pane.setSelText(std::string(static_cast<std::size_t>(below(6)), static_cast<char>('a' + below(26))));
            }
        }
        pane.setSelStart(below(pane.TextLength() + 1));
        t.typeJoystick("k");
        Journal journal;
        ASSERT_EQ(readJournal(t.fileText(t.onlyJournal()), journal), JournalState::Readable);
        ASSERT_EQ(journal.text, pane.Text()) << round;
    }
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
    EXPECT_EQ(names.find("4.journal"), std::string::npos) << "not anew at each key: " << names;
    const std::string text = t.editor().JoystickText.Text();
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), text);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 fire\r\n");
}

// ---- a journal that can't be written ----

TEST(Journal, ThatCannotBeWrittenInterruptsNothingAndIsReportedOnce)
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

TEST(Journal, ThatCannotBeWrittenASecondTimeIsReportedAnew)
{
    OpenPair t;
    const RuntimeError full(ErrorCode::DiskFull, "No space left on device");
    t.files.failAppends(full);
    t.typeJoystick("a");
    t.files.failAppends(std::nullopt);
    t.diskIsDone();
    t.editor().status("something else");
    t.files.failAppends(full);
    t.typeJoystick("b");
    EXPECT_EQ(t.status(), "I can't take notes of what you type, so you'd better save it now and then: No space left on "
                          "device");
}

TEST(Journal, ThatCouldNotBeWrittenIsTriedAgainLater)
{
    OpenPair t;
    t.files.failAppends(RuntimeError(ErrorCode::DiskFull, "No space left on device"));
    t.typeJoystick("a");
    EXPECT_TRUE(t.editor().TimerJournal.Enabled);
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

} // namespace
} // namespace tarvex
