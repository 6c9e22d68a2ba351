// Another program writes to a document's file: the strip above its pane, and what its buttons do.

#include "documents/files/outside_notice.h"

#include "documents/files/auto_save.h"
#include "platform/utf16.h"
#include "shell/session_extras.h"
#include "support/test_program.h"
#include "support/utf16_text.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarvex {
namespace {

constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";
constexpr const char* migMacros = "c:\\tm\\b50progs\\mig.m50";
constexpr const char* opened = "BTN S1 x\r\nBTN S2 y\r\nBTN S3 z\r\n";
constexpr const char* theirs = "BTN S1 x\r\nBTN S2 theirs\r\nBTN S3 z\r\n";

struct FakeWatch final : FileWatch {
    std::vector<std::string> paths;
    void watch(const std::vector<std::string>& which) override { paths = which; }
};

struct OutsideNoticeTest : testing::Test {
    OutsideNoticeTest()
    {
        t.files.addFile(mig, opened);
        t.files.addFile(migMacros, "Fire = f\r\n");
        t.settings().CheckIdentifyOK = 0;
        t.settings().CreateBackup = 0;
        t.openBoth(mig);
        useFileWatch(notices(), watch);
    }
    FakeWatch watch;
    TestProgram t;

    OutsideNotices& notices() { return t.program().outsideNotices; }
    OutsideNotice& strip() { return notices().joystick; }
    Side& side() { return t.editor().joystick; }
    Pane& pane() { return t.editor().JoystickText; }
    void changeOutside(const std::string& text = theirs)
    {
        t.files.addFile(mig, text);
        watch.changed();
    }
    void removeOutside()
    {
        t.files.removeFile(mig);
        watch.changed();
    }
    void undo() { t.menus().mnuEditUndo.Click(); }
    void reloadUnasked() { t.program().shared.extras.set(extraKey::reloadUnmodified, true); }
};

// ---- what the strip shows -------------------------------------------------------------------------------------------

TEST_F(OutsideNoticeTest, NothingIsShownWhileNobodyElseWrites)
{
    t.typeJoystick("x");
    watch.changed();
    EXPECT_FALSE(strip().Visible);
    t.menus().mnuFileSave.Click();
    watch.changed();
    EXPECT_FALSE(strip().Visible) << "the program's own save is no news";
}

TEST_F(OutsideNoticeTest, AChangedFileIsAnnouncedAndTheTextStays)
{
    changeOutside();
    EXPECT_TRUE(strip().Visible);
    EXPECT_EQ(strip().Text.Caption.get(), "Another program has changed mig.b50.");
    EXPECT_TRUE(strip().Reload.Visible);
    EXPECT_TRUE(strip().Differences.Visible);
    EXPECT_FALSE(notices().macro.Visible);
    EXPECT_EQ(pane().Text(), opened);
    EXPECT_EQ(side().Changed, changed::saved);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(OutsideNoticeTest, AModifiedDocumentHearsThatBothHaveChanged)
{
    t.typeJoystick("x");
    changeOutside();
    EXPECT_EQ(strip().Text.Caption.get(),
              "Another program has changed mig.b50, and so have you. After a reload, Undo brings yours back.");
}

TEST_F(OutsideNoticeTest, TheMacroFileHasItsOwnStrip)
{
    t.files.addFile(migMacros, "Fire = g\r\n");
    watch.changed();
    EXPECT_TRUE(notices().macro.Visible);
    EXPECT_FALSE(strip().Visible);
}

TEST_F(OutsideNoticeTest, OtherContentsUnderTheSameTimeAndSizeAreNoticed)
{
    t.files.changeSecretly(mig, "BTN S1 x\r\nBTN S2 Y\r\nBTN S3 z\r\n");
    watch.changed();
    EXPECT_TRUE(strip().Visible);
}

TEST_F(OutsideNoticeTest, AFileThatWasOnlyTouchedIsNoNews)
{
    changeOutside(opened);
    EXPECT_FALSE(strip().Visible);
}

TEST_F(OutsideNoticeTest, ADeletedFileIsAnnouncedWithoutAReload)
{
    removeOutside();
    EXPECT_TRUE(strip().Visible);
    EXPECT_FALSE(strip().Reload.Visible);
    EXPECT_FALSE(strip().Differences.Visible);
    EXPECT_EQ(strip().Text.Caption.get(), "mig.b50 is gone: another program has deleted or renamed it. What you see "
                                          "here is still all there.");
}

TEST_F(OutsideNoticeTest, AFileThatIsDeletedAndMadeAgainWithTheSameTextIsNoNews)
{
    removeOutside();
    changeOutside(opened);
    EXPECT_FALSE(strip().Visible);
}

TEST_F(OutsideNoticeTest, ADirectoryInPlaceOfTheFileIsAnnounced)
{
    t.files.removeFile(mig);
    t.files.addDirectory(mig);
    watch.changed();
    EXPECT_TRUE(strip().Visible);
    EXPECT_FALSE(strip().Reload.Visible);
    EXPECT_EQ(strip().Text.Caption.get(), "I can't read mig.b50 any more. What you see here is still all there.");
}

TEST_F(OutsideNoticeTest, AFileThatCannotBeReadIsAnnounced)
{
    t.files.failReads(mig, RuntimeError(ErrorCode::PathFileAccess, "Not a regular file")); // a pipe, say
    watch.changed();
    EXPECT_TRUE(strip().Visible);
    EXPECT_FALSE(strip().Reload.Visible);
}

TEST_F(OutsideNoticeTest, AHugeFileIsAnnouncedAndNotOffered)
{
    changeOutside(std::string((std::size_t{64} << 20) + 1, 'x'));
    EXPECT_TRUE(strip().Visible);
    EXPECT_FALSE(strip().Reload.Visible);
    EXPECT_EQ(strip().Text.Caption.get(),
              "Another program has made mig.b50 larger than 64 MB, and I don't open files of that size.");
    EXPECT_EQ(pane().Text(), opened);
}

TEST_F(OutsideNoticeTest, AFileThatChangesAllTheTimeShowsOneSteadyStrip)
{
    changeOutside("0");
    int shown = 0;
    const Connection visible = strip().Visible.changed.connect([&] { ++shown; });
    const Connection text = strip().Text.Caption.changed.connect([&] { ++shown; });
    for (int i = 1; i <= 100; ++i) changeOutside(std::to_string(i));
    EXPECT_EQ(shown, 0);
    EXPECT_TRUE(strip().Visible);
}

TEST_F(OutsideNoticeTest, TheStripGoesWhenTheFileHoldsTheOpenedTextAgain)
{
    changeOutside();
    changeOutside(opened);
    EXPECT_FALSE(strip().Visible);
}

TEST_F(OutsideNoticeTest, ANewDocumentHasNoStrip)
{
    changeOutside();
    t.menus().mnuFileNewJoystick.Click();
    EXPECT_FALSE(strip().Visible);
    changeOutside("more");
    EXPECT_FALSE(strip().Visible);
}

TEST_F(OutsideNoticeTest, ANewDocumentOfTheSameNameHasNoStripEither)
{
    t.menus().mnuFileNewJoystick.Click();
    t.typeJoystick("mine");
    AutoSaveFile(t.editor());
    t.files.addFile("c:\\tm\\b50progs\\untitled.b50", "theirs");
    watch.changed();
    ASSERT_TRUE(strip().Visible);
    t.menus().mnuFileNewJoystick.Click();
    EXPECT_FALSE(strip().Visible);
}

TEST_F(OutsideNoticeTest, OpeningAnotherFileFollowsThatOne)
{
    t.files.addFile("c:\\tm\\b50progs\\su27.b50", "su27");
    changeOutside();
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.openBoth("c:\\tm\\b50progs\\su27.b50");
    EXPECT_FALSE(strip().Visible);
    EXPECT_EQ(watch.paths, (std::vector<std::string>{"c:\\tm\\b50progs\\su27.b50", migMacros}));
    changeOutside("not this one");
    EXPECT_FALSE(strip().Visible);
}

TEST_F(OutsideNoticeTest, AFileOfTheSameNameInAnotherFolderIsFollowedToo)
{
    t.files.addFile("c:\\tm\\old\\mig.b50", opened);
    changeOutside();
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.openBoth("c:\\tm\\old\\mig.b50");
    EXPECT_FALSE(strip().Visible);
    EXPECT_EQ(watch.paths.front(), "c:\\tm\\old\\mig.b50");
}

TEST_F(OutsideNoticeTest, ASaveThatReplacesTheOtherVersionTakesTheStripAway)
{
    t.typeJoystick("x");
    changeOutside();
    t.dialogues.answers = {Answer::Yes};
    t.menus().mnuFileSave.Click();
    EXPECT_FALSE(strip().Visible);
}

// ---- reload ---------------------------------------------------------------------------------------------------------

TEST_F(OutsideNoticeTest, AFileThatCameBackInUnicodeIsRemarked)
{
    changeOutside(asUtf16("Rem \u0416\r\n"));
    strip().Reload.Click();
    EXPECT_EQ(pane().Text(), "Rem ?\r\n");
    EXPECT_EQ(
        t.status(),
        "mig.b50 is reloaded. If you'd rather have what was here before, press Undo. mig.b50 is in Unicode, which "
        "no loader reads: when you save it, it becomes plain text. That has no room for 1 character, so you see "
        "question marks.");
}

TEST_F(OutsideNoticeTest, ReloadShowsTheFileAndUndoBringsTheOldTextBack)
{
    changeOutside();
    strip().Reload.Click();
    EXPECT_FALSE(strip().Visible);
    EXPECT_EQ(pane().Text(), theirs);
    EXPECT_EQ(side().Changed, changed::saved);
    EXPECT_EQ(t.status(), "mig.b50 is reloaded. If you'd rather have what was here before, press Undo.");
    undo();
    EXPECT_EQ(pane().Text(), opened);
    EXPECT_EQ(side().Changed, changed::modified);
    t.menus().mnuEditRedo.Click();
    EXPECT_EQ(pane().Text(), theirs);
    EXPECT_EQ(side().Changed, changed::saved) << "the file holds that";
}

TEST_F(OutsideNoticeTest, ReloadOfAFileThatBecameUtf16ShowsItsText)
{
    changeOutside(utf16FromUtf8("\xEF\xBB\xBFRem \u00E9\r\n", Utf16Order::BigEndian));
    strip().Reload.Click();
    EXPECT_EQ(pane().Text(), "Rem \xE9\r\n");
    EXPECT_EQ(side().Changed, changed::saved);
}

TEST_F(OutsideNoticeTest, ReloadOfAModifiedDocumentKeepsTheEditsInUndo)
{
    pane().setSelStart(0);
    t.pressKeys(pane(), "mine ");
    changeOutside();
    strip().Reload.Click();
    EXPECT_EQ(pane().Text(), theirs);
    undo();
    EXPECT_EQ(pane().Text(), std::string("mine ") + opened);
}

TEST_F(OutsideNoticeTest, ReloadOnAnUndoneStateKeepsThatStateInReach)
{
    for (int i = 0; i < 20; ++i) t.typeJoystick("x");
    while (t.menus().mnuEditUndo.Enabled) undo();
    const std::string shown = pane().Text();
    changeOutside();
    strip().Reload.Click();
    undo();
    EXPECT_EQ(pane().Text(), shown);
}

TEST_F(OutsideNoticeTest, ReloadKeepsCaretAndSelectionAtTheirText)
{
    pane().setSelStart(24); // "z" of the third line, without its line end
    pane().setSelLength(3);
    const std::string selected = pane().SelText();
    changeOutside();
    strip().Reload.Click();
    EXPECT_EQ(pane().SelText(), selected);
    EXPECT_EQ(pane().SelStart(), 24 + 5);
    EXPECT_EQ(side().Caret, pane().SelStart());
}

TEST_F(OutsideNoticeTest, ReloadKeepsTheColoursOfLinesThatStay)
{
    pane().setSelStart(0);
    pane().setSelLength(3);
    pane().setSelColor(255);
    changeOutside();
    t.settings().ApplyColoursOnFileOpen = 0;
    strip().Reload.Click();
    EXPECT_EQ(pane().formatAt(0).colour, 255);
    EXPECT_EQ(pane().formatAt(12).colour, 0);
}

TEST_F(OutsideNoticeTest, ReloadColoursTheTextWhereOpeningWould)
{
    t.settings().ApplyColoursOnFileOpen = 1;
    changeOutside("BTN S1 x\r\nRem theirs\r\n");
    strip().Reload.Click();
    EXPECT_EQ(pane().formatAt(10).colour, t.settings().RemStatements);
    EXPECT_EQ(side().Undo.Levels.front().Text.text(), pane().Text());
}

TEST_F(OutsideNoticeTest, ReloadOfTheFileBehindLeavesTheTabInFront)
{
    t.files.addFile(migMacros, "Fire = f\r\nGear = g\r\n");
    watch.changed();
    notices().macro.Reload.Click();
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
    EXPECT_EQ(t.editor().MacroText.Text(), "Fire = f\r\nGear = g\r\n");
    EXPECT_EQ(t.editor().FrameMacros.List1.front().Items.get().size(), 2U) << "the macro list follows";
}

TEST_F(OutsideNoticeTest, ReloadTicksTheMacrosThatTheNewTextUses)
{
    const auto isTicked = [this] { return t.editor().FrameMacros.List1.front().Items.get().front().Selected; };
    t.settings().CheckIdentifyOK = 1;
    changeOutside("BTN S1 Fire \r\n");
    strip().Reload.Click();
    EXPECT_TRUE(isTicked());
    changeOutside("BTN S1 fuel \r\n");
    strip().Reload.Click();
    EXPECT_FALSE(isTicked());
}

TEST_F(OutsideNoticeTest, ReloadTakesTheTicksAwayWhenMacrosAreOnlyIdentifiedOnRequest)
{
    CheckListBox& list = t.editor().FrameMacros.List1.front();
    std::vector<CheckListBox::Item> items = list.Items;
    items.front().Selected = true;
    list.Items = items;
    changeOutside("BTN S1 Fire \r\n");
    strip().Reload.Click();
    EXPECT_FALSE(list.Items.get().front().Selected) << "they belong to the text of before";
}

TEST_F(OutsideNoticeTest, ReloadOfAFileWithOtherLineEndsShowsPairs)
{
    changeOutside("one\ntwo\rthree");
    strip().Reload.Click();
    EXPECT_EQ(pane().Text(), "one\r\ntwo\r\nthree");
    EXPECT_EQ(side().Changed, changed::saved);
    watch.changed();
    EXPECT_FALSE(strip().Visible);
}

TEST_F(OutsideNoticeTest, AFileThatVanishesBeforeTheReloadLeavesTheText)
{
    changeOutside();
    t.files.removeFile(mig);
    strip().Reload.Click();
    EXPECT_EQ(pane().Text(), opened);
    EXPECT_EQ(t.lastBox().title, "Ooops!");
}

TEST_F(OutsideNoticeTest, AProtectedMacroFileIsReloadedToo)
{
    t.menus().mnuPreferencesProtectMacroFile.Click();
    t.files.addFile(migMacros, "Fire = g\r\n");
    watch.changed();
    notices().macro.Reload.Click();
    EXPECT_EQ(t.editor().MacroText.Text(), "Fire = g\r\n");
    EXPECT_TRUE(t.editor().MacroText.Locked);
}

// ---- without a question ---------------------------------------------------------------------------------------------

TEST_F(OutsideNoticeTest, WithTheTickAnUnmodifiedTextIsReloadedUnasked)
{
    reloadUnasked();
    changeOutside();
    EXPECT_FALSE(strip().Visible);
    EXPECT_EQ(pane().Text(), theirs);
    undo();
    EXPECT_EQ(pane().Text(), opened);
}

TEST_F(OutsideNoticeTest, WithTheTickAModifiedTextIsStillAskedAbout)
{
    reloadUnasked();
    t.typeJoystick("x");
    changeOutside();
    EXPECT_TRUE(strip().Visible);
    EXPECT_EQ(pane().Text(), std::string("x") + opened);
}

TEST_F(OutsideNoticeTest, WithTheTickADeletedFileLeavesTheText)
{
    reloadUnasked();
    removeOutside();
    EXPECT_TRUE(strip().Visible);
    EXPECT_EQ(pane().Text(), opened);
}

// ---- keep -----------------------------------------------------------------------------------------------------------

TEST_F(OutsideNoticeTest, KeepMakesTheDocumentModifiedAndASaveStillAsks)
{
    changeOutside();
    strip().Keep.Click();
    EXPECT_FALSE(strip().Visible);
    EXPECT_EQ(pane().Text(), opened);
    EXPECT_EQ(side().Changed, changed::modified);
    EXPECT_EQ(t.status(), "mig.b50 stays as it is here. It counts as modified until you save it.");
    watch.changed();
    EXPECT_FALSE(strip().Visible) << "the user has decided about this version";
    t.dialogues.answers = {Answer::Yes};
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.lastBox().title, "Whoa ... not so fast!");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\mig-outside.b50"), theirs);
    EXPECT_EQ(t.fileText(mig), opened);
}

TEST_F(OutsideNoticeTest, KeepOfAFileThatIsAsItWasAgainLeavesTheDocumentSaved)
{
    changeOutside();
    t.files.addFile(mig, opened);
    strip().Keep.Click();
    EXPECT_FALSE(strip().Visible);
    EXPECT_EQ(side().Changed, changed::saved);
}

TEST_F(OutsideNoticeTest, NothingIsLookedForWhileADocumentIsBeingOpened)
{
    t.program().shared.IsLoading = 1;
    changeOutside();
    EXPECT_FALSE(strip().Visible);
    t.program().shared.IsLoading = 0;
    watch.changed();
    EXPECT_TRUE(strip().Visible);
}

TEST_F(OutsideNoticeTest, ANewVersionAfterKeepIsAnnouncedAnew)
{
    changeOutside();
    strip().Keep.Click();
    changeOutside("still another");
    EXPECT_TRUE(strip().Visible);
}

TEST_F(OutsideNoticeTest, AKeptTextIsModifiedWhateverIsUndone)
{
    t.typeJoystick("x");
    changeOutside();
    strip().Keep.Click();
    undo();
    EXPECT_EQ(pane().Text(), opened);
    EXPECT_EQ(side().Changed, changed::modified) << "no file holds it";
}

TEST_F(OutsideNoticeTest, AKeptTextIsAskedAboutAtTheEnd)
{
    removeOutside();
    strip().Keep.Click();
    t.dialogues.answers = {Answer::Yes};
    t.menus().mnuFileExit.Click();
    EXPECT_EQ(t.fileText(mig), opened);
    EXPECT_EQ(t.desktop.quits, 1);
}

TEST_F(OutsideNoticeTest, AKeptTextOutlivesACrash)
{
    removeOutside();
    strip().Keep.Click();
    t.dialogues.otherAnswers = [](const MessageBox&) { return Answer::Yes; };
    t.start(); // the process before ended without a word
    EXPECT_EQ(t.editor().JoystickText.Text(), opened);
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
}

TEST_F(OutsideNoticeTest, AnAutomaticSaveSkipsAKeptTextOfAChangedFile)
{
    changeOutside();
    strip().Keep.Click();
    AutoSaveFile(t.editor());
    EXPECT_EQ(t.fileText(mig), theirs);
}

// ---- differences ----------------------------------------------------------------------------------------------------

TEST_F(OutsideNoticeTest, TheStripShowsTheDifferencesOfItsDocument)
{
    t.files.addFile(migMacros, "Fire = g\r\n");
    watch.changed();
    int rows = 0;
    t.dialogues.whileModal = [&] {
        loadDifferences(t.program().differences);
        rows = static_cast<int>(t.program().differences.Rows.size());
    };
    notices().macro.Differences.Click();
    EXPECT_EQ(t.dialogues.modalForms, std::vector<std::string>{"Differences"});
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 2);
    EXPECT_EQ(rows, 1);
    EXPECT_TRUE(notices().macro.Visible);
}

TEST_F(OutsideNoticeTest, TheBoxOfASaveShowsTheDifferencesAndAsksAgain)
{
    t.typeJoystick("x");
    changeOutside();
    t.dialogues.answers = {Answer::Ok, Answer::Cancel};
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.dialogues.modalForms, std::vector<std::string>{"Differences"});
    EXPECT_EQ(t.lastBox().captions.back(), "Show the &differences ...");
    EXPECT_EQ(t.fileText(mig), theirs);
}

TEST_F(OutsideNoticeTest, AVersionThatWasKeptAwayIsAnnouncedAgainAfterAReloadOrASave)
{
    changeOutside();
    strip().Keep.Click();
    changeOutside("still another\r\n");
    strip().Reload.Click();
    EXPECT_FALSE(strip().Visible);
    changeOutside();
    EXPECT_TRUE(strip().Visible) << "after a reload";

    strip().Keep.Click();
    t.dialogues.answers = {Answer::Yes};
    t.menus().mnuFileSave.Click();
    changeOutside();
    EXPECT_TRUE(strip().Visible) << "after a save";
}

} // namespace
} // namespace tarvex
