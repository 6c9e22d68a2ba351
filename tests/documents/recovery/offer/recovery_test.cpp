// Unsaved typing is restored after any end of the program.

#include "documents/files/auto_save.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "documents/recovery/open_pair.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

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
    EXPECT_EQ(t.editor().joystick.FilePath, joystickPath);
    EXPECT_EQ(t.editor().macro.FilePath, macroPath);
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

/// A journal's first record alone.
Journal startOf(const std::string& bytes)
{
    Journal journal;
    for (std::size_t size = 0; size <= bytes.size(); ++size)
        if (readJournal(bytes.substr(0, size), journal) == JournalState::Readable) break;
    return journal;
}

TEST(Recovery, AKillRightAfterTheStartStillLeavesBothFilesKnown)
{
    OpenPair t;
    t.typeMacro("gear = g\r\n");
    t.killAndStart({Answer::Yes});
    t.diskIsDone();
    EXPECT_EQ(startOf(t.files.read(t.onlyJournal())).start.partnerPath, joystickPath);
}

constexpr const char* boxBeginning =
    "Somebody pulled the plug on me last time, before everything was saved. Don't panic: "
    "I'd been taking notes all along, and here's what I've got:\n";
constexpr const char* boxEnd = "\n\nShall I bring it back? It will be just as you left it: not saved yet, and one Undo "
                               "away from what was saved. If you press No it goes as plain text into\n\n    "
                               "c:\\tarvex\\Recover\n\nand I won't bother you with it again.";

TEST(Recovery, TheBoxNamesTheFilesAndWhereTheirTextsGo)
{
    OpenPair t;
    t.typeJoystick("1");
    t.typeMacro("2");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.lastBox().text, std::string(boxBeginning) + "\n    mig.b50\n    mig.m50" + boxEnd);
}

TEST(Recovery, TheBoxNamesTheNewNameForAFileThatHasChanged)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.files.addFile(joystickPath, "BTN S1 theirs\r\n");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.lastBox().text, std::string(boxBeginning) +
                                    "\n    mig.b50\n\nmig.b50 isn't what it was then, so I'd leave the file alone and "
                                    "call yours untitled-mig.b50." +
                                    boxEnd);
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
    EXPECT_EQ(t.editor().joystick.FilePath, joystickPath);
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
    EXPECT_EQ(t.editor().joystick.FileName, "untitled.b50");
    EXPECT_EQ(t.editor().joystick.FilePath, "c:\\tm\\b50progs\\untitled.b50");
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
    EXPECT_FALSE(t.menus().mnuViewMacros.Checked) << "no macro file was opened";
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\new.b50"};
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\new.b50"), "BTN S1 a");
}

TEST(Recovery, WithNoMacrosToIdentifyNobodyIsScolded)
{
    TestProgram t;
    ASSERT_EQ(t.settings().CheckIdentifyOK, 1);
    t.typeJoystick("BTN S1 fire");
    t.dialogues.answers = {Answer::Yes};
    t.start();
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 fire");
    ASSERT_EQ(t.dialogues.boxes.size(), 1U) << t.lastBox().title;
    EXPECT_EQ(t.lastBox().title, "Phew ... nothing's lost!");
    t.menus().mnuViewIdentify.Click(); // the user asks for it
    EXPECT_EQ(t.lastBox().title, "You're kidding me...right?!");
}

TEST(Recovery, AFileThatHasChangedSinceIsLeftAloneAndTheTextGetsANewName)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.files.addFile(joystickPath, "BTN S1 theirs\r\n");
    t.killAndStart({Answer::Yes});
    EXPECT_NE(t.lastBox().text.find("untitled-mig.b50"), std::string::npos);
    EXPECT_EQ(t.editor().JoystickText.Text(), "mine BTN S1 fire\r\n");
    EXPECT_EQ(t.editor().joystick.FileName, "untitled-mig.b50");
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
    EXPECT_EQ(t.editor().joystick.FileName, "untitled-mig.b50");
    EXPECT_EQ(t.editor().macro.FileName, "untitled-mig.m50");
    EXPECT_EQ(t.editor().MacroText.Text(), "too fire = x\r\n");
}

TEST(Recovery, TheNewNameIsNoFilesName)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.files.addFile(joystickPath, "theirs");
    t.files.addFile("c:\\tm\\b50progs\\untitled-mig.b50", "of another day");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().joystick.FilePath, "c:\\tm\\b50progs\\untitled-mig-2.b50");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "mine BTN S1 fire\r\n") << "a second time, too";
    EXPECT_EQ(t.editor().joystick.FilePath, "c:\\tm\\b50progs\\untitled-mig-2.b50");
}

TEST(Recovery, AnUntitledTextIsNotPutOverAFileOfThatNameMadeSince)
{
    TestProgram t;
    t.typeJoystick("mine");
    t.files.addFile("c:\\tm\\b50progs\\untitled.b50", "theirs");
    t.dialogues.answers = {Answer::Yes};
    t.start();
    EXPECT_EQ(t.editor().joystick.FileName, "untitled-2.b50");
    AutoSaveFile(t.editor());
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\untitled.b50"), "theirs");
}

TEST(Recovery, AfterNoTheTextLiesInTheFolderAndIsNotOfferedAgain)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.typeMacro("too ");
    t.killAndStart({Answer::No});
    EXPECT_EQ(
        t.lastBox().text,
        "Somebody pulled the plug on me last time, before everything was saved. Don't panic: I'd been taking notes "
        "all along, and here's what I've got:\n\n    mig.b50\n    mig.m50\n\nShall I bring it back? It will be just "
        "as you left it: not saved yet, and one Undo away from what was saved. If you press No it goes as plain "
        "text into\n\n    c:\\tarvex\\Recover\n\nand I won't bother you with it again.");
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
    EXPECT_EQ(t.editor().joystick.FileName, "untitled-mig.b50");
    EXPECT_EQ(t.joystick().Changed, changed::modified);
}

TEST(Recovery, ATextThatAKeyMadeModifiedWithoutAnEditComesBackWhenItsFileHasChanged)
{
    OpenPair t;
    t.editor().JoystickText.userEdit(t.editor().JoystickText.TextLength(), 1, ""); // Delete behind the last character
    ASSERT_EQ(t.joystick().Changed, changed::modified);
    t.files.addFile(joystickPath, "BTN S1 theirs\r\n");
    t.killAndStart({Answer::Yes});
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 fire\r\n");
    EXPECT_EQ(t.fileText(joystickPath), "BTN S1 theirs\r\n");
}

TEST(Recovery, IsNotOfferedForANewDocumentThatIsEmptyAgain)
{
    TestProgram t;
    t.pressKeys(t.editor().JoystickText, "x\b");
    ASSERT_FALSE(t.files.list(recoverDirectory).empty());
    t.start();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_TRUE(t.files.list(recoverDirectory).empty());
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
    for (const int macro : {7, 17}) EXPECT_EQ(pane.formatAt(macro).colour, 0) << "not that of the text beside it";
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
    t.files.addFile("c:\\tarvex\\Recover\\3.damaged", "Dear diary");
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
    EXPECT_EQ(
        t.dialogues.boxes[1].text,
        "I couldn't bring odd.b50 back as you left it, so don't trust what you see there. My notes are still where "
        "they were: I'll ask you again next time, and if you press No then, you'll find them as plain text "
        "in\n\n    c:\\tarvex\\Recover");
    Journal ofThePane;
    ASSERT_EQ(readJournal(t.fileText("c:\\tarvex\\Recover\\2.journal"), ofThePane), JournalState::Readable);
    EXPECT_EQ(ofThePane.text, t.editor().JoystickText.Text()) << "what the pane shows has a journal at once";
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
    t.files.addFile(std::string(recoverDirectory) + "\\1.journal", journalStart({.tab = 1,
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
    EXPECT_TRUE(t.lastBox().text.ends_with("\n\nand I won't bother you with it again. That's where I'll put some older "
                                           "notes in any case, as there's no room for them here."))
        << t.lastBox().text;
    EXPECT_EQ(t.fileText("c:\\tarvex\\Recover\\old.b50"), "old text") << "and in no other folder";
}

} // namespace
} // namespace tarvex
