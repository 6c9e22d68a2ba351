#include "documents/editing/pane_keys.h"
#include "documents/files/outside_notice.h"
#include "documents/pair/editor_layout.h"
#include "documents/pair/tabs.h"
#include "documents/window/hardware_changes.h"
#include "shell/hardware/hardware_profile.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct PairTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();

    int tabImageOf(int tab) { return editor.TabStrip1.Tabs(tab).Image; }
    std::string savedTip() { return t.program().mum.StatusBar.Panels(2).ToolTipText; }
    int savedPicture() { return t.program().mum.StatusBar.Panels(2).Picture; }
    void resize(int width, int height)
    {
        editor.ScaleWidth = width;
        editor.ScaleHeight = height;
        Form_Resize(editor);
    }
};

// ---- state of the documents ----

TEST_F(PairTest, NewDocumentsHaveNoTextAndAreUntitled)
{
    EXPECT_EQ(editor.joystick.FileName, "untitled.b50");
    EXPECT_EQ(editor.macro.FileName, "untitled.m50");
    EXPECT_EQ(editor.joystick.FilePath, "c:\\tm\\b50progs\\untitled.b50");
    EXPECT_EQ(editor.joystick.Changed, changed::noText);
    EXPECT_EQ(editor.macro.Changed, changed::noText);
    EXPECT_EQ(savedPicture(), 1);
    EXPECT_EQ(savedTip(), "untitled.b50 has no text and isn't saved");
}

TEST_F(PairTest, TypingMarksTheDocumentModified)
{
    t.typeJoystick("x");
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
    EXPECT_EQ(editor.macro.Changed, changed::noText);
    EXPECT_EQ(savedPicture(), 3);
    EXPECT_EQ(savedTip(), "untitled.b50 has been modified and isn't saved");
}

TEST_F(PairTest, ANewDocumentTypedIntoAndEmptiedAgainStaysModified)
{
    t.typeJoystick("x");
    editor.JoystickText.userEdit(0, 1, "");
    EXPECT_EQ(editor.JoystickText.Text(), "");
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
}

TEST_F(PairTest, TheSavedStateFollowsTheSelectedTab)
{
    t.typeMacro("A = a");
    EXPECT_EQ(savedPicture(), 1);
    editor.TabStrip1.Select(2);
    EXPECT_EQ(savedPicture(), 3);
    EXPECT_EQ(savedTip(), "untitled.m50 has been modified and isn't saved");
}

TEST_F(PairTest, ChangesWhileLoadingDontCount)
{
    t.program().shared.IsLoading = 1;
    t.typeJoystick("x");
    EXPECT_EQ(editor.joystick.Changed, changed::noText);
}

TEST_F(PairTest, AChangeTakesAnUndoLevelAndOpensANewOneForTheNext)
{
    t.typeJoystick("x");
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), 2U);
    editor.joystick.TakeNewLevel = 0;
    t.typeJoystick("y");
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), 2U);
    EXPECT_EQ(editor.joystick.Undo.Levels[0].Text.text(), "xy");
    EXPECT_EQ(editor.joystick.TakeNewLevel, 1);
}

TEST_F(PairTest, EmptyingAPaneBringsItsIndentBack)
{
    t.typeJoystick("x");
    editor.JoystickText.setSelLength(0);
    editor.JoystickText.setText("");
    EXPECT_EQ(editor.JoystickText.SelIndent(), 20);
    t.typeJoystick("y");
    EXPECT_EQ(editor.JoystickText.formatAt(0).indent, 20);
}

TEST_F(PairTest, TypedTextHasTheSchemesFont)
{
    t.typeJoystick("x");
    const CharacterFormat& format = editor.JoystickText.formatAt(0);
    EXPECT_EQ(format.fontName, t.settings().TextFontName);
    EXPECT_EQ(format.fontSize, static_cast<float>(t.settings().TextFontSize));
    EXPECT_EQ(format.colour, 0);
}

// ---- new and close ----

TEST_F(PairTest, NewJoystickAsksBeforeUnsavedTextGoesAndCancelKeepsIt)
{
    t.typeJoystick("mine");
    t.dialogues.answers = {Answer::Cancel};
    t.menus().mnuFileNewJoystick.Click();
    EXPECT_EQ(t.lastBox().title, " Save untitled.b50 now?");
    EXPECT_EQ(t.lastBox().text, "untitled.b50 has changed and isn't saved. Do you want to save it first?");
    EXPECT_EQ(editor.JoystickText.Text(), "mine");
}

TEST_F(PairTest, NewJoystickEmptiesNameStateAndCaret)
{
    t.files.addFile("c:\\a\\x.b50", "BTN S1 x");
    t.files.addFile("c:\\a\\x.m50", "");
    t.openBoth("c:\\a\\x.b50");
    editor.JoystickText.setSelStart(3);
    t.menus().mnuFileNewJoystick.Click();
    EXPECT_EQ(editor.JoystickText.Text(), "");
    EXPECT_EQ(editor.joystick.FileName, "untitled.b50");
    EXPECT_EQ(editor.TabStrip1.Tabs(1).Caption.get(), "untitled.b50");
    EXPECT_EQ(editor.joystick.Changed, changed::noText);
    EXPECT_EQ(t.status(), "New joystick file created");
    EXPECT_EQ(t.status(3), "Line no: 1");
    EXPECT_EQ(t.program().shared.IsLoading, 0);
}

TEST_F(PairTest, ANewDocumentHasNoSelectionNotedAndThePresentBackground)
{
    for (Side* side : {&editor.joystick, &editor.macro}) {
        side->pane.setText("text");
        side->Changed = changed::saved;
        side->Caret = side->SelectionLength = 2;
        t.settings().BackgroundColour = 0x123456;
        t.settings().MacroBackgroundColour = 0x654321;
        editor.TabStrip1.Select(side->tab);
        t.menus().mnuFileClose.Click();
        EXPECT_EQ(side->Caret, 0) << side->kind;
        EXPECT_EQ(side->SelectionLength, 0) << side->kind;
        EXPECT_EQ(side->pane.BackColor, side == &editor.joystick ? 0x123456 : 0x654321) << side->kind;
    }
}

TEST_F(PairTest, NewMacroForgetsTheAnalysedFile)
{
    t.program().mum.StatusBar.Panels(8).Text = "old.m50";
    t.program().mum.StatusBar.Panels(8).ToolTipText = "Contains 3 macros";
    bool cleared = false;
    t.program().operations.ClearAllForNewMacroFile = [&] { cleared = true; };
    t.menus().mnuFileNewMacro.Click();
    EXPECT_EQ(t.status(8), "No macro file analysed");
    EXPECT_EQ(t.program().mum.StatusBar.Panels(8).ToolTipText.get(), "");
    EXPECT_TRUE(cleared);
    EXPECT_EQ(t.status(), "New macro file created");
}

TEST_F(PairTest, CloseIsNewForTheSelectedTab)
{
    t.typeJoystick("j");
    t.typeMacro("m");
    editor.TabStrip1.Select(2);
    t.dialogues.answers = {Answer::No};
    t.menus().mnuFileClose.Click();
    EXPECT_EQ(editor.MacroText.Text(), "");
    EXPECT_EQ(editor.JoystickText.Text(), "j");
    t.typeMacro("m");
    t.dialogues.answers = {Answer::No, Answer::No};
    t.menus().mnuFileCloseBoth.Click();
    EXPECT_EQ(editor.JoystickText.Text(), "");
    EXPECT_EQ(editor.MacroText.Text(), "");
}

// ---- tabs ----

TEST_F(PairTest, ACancelInNewBothKeepsBothDocuments)
{
    t.files.addFile("c:\\a\\x.b50", "BTN");
    t.files.addFile("c:\\a\\x.m50", "A = a");
    t.openBoth("c:\\a\\x.b50");
    t.typeJoystick("j");
    t.dialogues.answers = {Answer::Cancel};
    t.menus().mnuFileNewBoth.Click();
    EXPECT_EQ(editor.JoystickText.Text(), "jBTN");
    EXPECT_EQ(editor.MacroText.Text(), "A = a");
}

TEST_F(PairTest, TabStrip1_ClickShowsThePaneItsImageAndWhatIsEdited)
{
    int focused = 0;
    const auto listening = editor.MacroText.focusWanted.connect([&] { ++focused; });
    editor.TabStrip1.Select(2);
    EXPECT_FALSE(editor.JoystickText.Visible);
    EXPECT_TRUE(editor.MacroText.Visible);
    EXPECT_EQ(tabImageOf(1), tabImage::none);
    EXPECT_EQ(tabImageOf(2), tabImage::selected);
    EXPECT_EQ(t.status(), "Editing untitled.m50");
    EXPECT_EQ(focused, 1);
}

TEST_F(PairTest, ACompileResultAndAMacroDefinitionStayInTheStatusBar)
{
    for (const char* text : {"Compiled and downloaded successfully!", "Compiler reported an error", "Fire = f"}) {
        editor.status(text);
        editor.TabStrip1.Select(2);
        EXPECT_EQ(t.status(), text);
    }
    editor.status("Done");
    editor.TabStrip1.Select(1);
    EXPECT_EQ(t.status(), "Editing untitled.b50");
}

TEST_F(PairTest, DownloadFollowsTheJoystickFilesExtension)
{
    EXPECT_TRUE(t.menus().mnuSendToJoystick.Enabled);
    EXPECT_EQ(t.menus().mnuSendToJoystick.Caption.get(), "&Download untitled.b50");
}

TEST_F(PairTest, AFileOfAnotherFamilyCantBeDownloadedAndTheCaptionHasNoName)
{
    t.files.addFile("c:\\a\\x.f22", "BTN S1 x");
    t.files.addFile("c:\\a\\x.m22", "");
    t.menus().mnuAppsQuiet.Checked = true;
    t.openBoth("c:\\a\\x.f22");
    EXPECT_FALSE(t.menus().mnuSendToJoystick.Enabled);
    EXPECT_EQ(t.menus().mnuSendToJoystick.Caption.get(), "&Download ");
    EXPECT_FALSE(t.menus().mnuAppsQuiet.Enabled);
}

TEST_F(PairTest, AlwaysShowCompileDownloadEnablesItForAnyFile)
{
    t.settings().AlwaysShowCompileDownload = 1;
    t.files.addFile("c:\\a\\x.f22", "BTN S1 x");
    t.files.addFile("c:\\a\\x.m22", "");
    t.openBoth("c:\\a\\x.f22");
    EXPECT_TRUE(t.menus().mnuSendToJoystick.Enabled);
    EXPECT_EQ(t.menus().mnuSendToJoystick.Caption.get(), "&Download x.f22");
}

TEST_F(PairTest, TheStatementForTheMissingToolbarButtonFailsAndIsSkipped)
{
    t.program().shared.errors.ErrorProcedure.clear();
    editor.TabStrip1.Select(1);
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_TabStrip1_Click");
    EXPECT_TRUE(t.program().mum.Toolbar1.Buttons(44).Enabled);
}

// ---- protection ----

TEST_F(PairTest, ProtectingLocksTheMacroPaneAndSaysSo)
{
    t.typeMacro("A = a");
    t.menus().mnuPreferencesProtectMacroFile.Click();
    EXPECT_TRUE(editor.MacroText.Locked);
    editor.TabStrip1.Select(2);
    EXPECT_EQ(t.status(), "untitled.m50 is protected and can't be edited.");
    EXPECT_FALSE(t.program().mum.StatusBar.Panels(1).Enabled);
    EXPECT_EQ(tabImageOf(2), tabImage::macroProtected);
    t.typeMacro("no");
    EXPECT_EQ(editor.MacroText.Text(), "A = a");
    editor.TabStrip1.Select(1);
    EXPECT_TRUE(t.program().mum.StatusBar.Panels(1).Enabled);
    EXPECT_EQ(tabImageOf(1), tabImage::selected);
}

TEST_F(PairTest, ProtectingWhileTab1IsSelectedChangesNoTabImageUntilTab2IsChosen)
{
    t.menus().mnuPreferencesProtectMacroFile.Click();
    EXPECT_EQ(tabImageOf(1), tabImage::selected);
    EXPECT_EQ(tabImageOf(2), tabImage::none);
    editor.TabStrip1.Select(2);
    EXPECT_EQ(tabImageOf(1), tabImage::none);
    EXPECT_EQ(tabImageOf(2), tabImage::macroProtected);
}

TEST_F(PairTest, ProtectingWhileTab2IsSelectedChangesItsImageAtOnceAndBack)
{
    editor.TabStrip1.Select(2);
    t.menus().mnuPreferencesProtectMacroFile.Click();
    EXPECT_EQ(tabImageOf(2), tabImage::macroProtected);
    t.menus().mnuPreferencesProtectMacroFile.Click();
    EXPECT_EQ(tabImageOf(2), tabImage::selected);
    EXPECT_FALSE(editor.MacroText.Locked);
}

// ---- layout ----

TEST_F(PairTest, PositionControlsFillsTheTabStrip)
{
    resize(1000, 600);
    EXPECT_EQ(editor.TabStrip1Place.get(), (Placement{0, 0, 1000, 600}));
    EXPECT_EQ(editor.JoystickText.Place.get(), (Placement{3, 23, 994, 578}));
    EXPECT_EQ(editor.MacroText.Place.get(), (Placement{3, 23, 994, 578}));
}

TEST_F(PairTest, TheMacroFrameTakesItsWidthFromTheTabStrip)
{
    resize(1000, 600);
    t.menus().mnuViewMacros.Click();
    EXPECT_EQ(editor.TabStrip1Place.get(), (Placement{185, 0, 815, 600}));
    EXPECT_EQ(editor.JoystickText.Place.get(), (Placement{188, 23, 809, 578}));
    EXPECT_EQ(editor.FrameMacros.Place.get(), (Placement{0, 0, 185, 600}));
    EXPECT_TRUE(editor.FrameMacros.Visible);
    t.menus().mnuViewMacros.Click();
    EXPECT_FALSE(editor.FrameMacros.Visible);
    EXPECT_EQ(editor.TabStrip1Place.get(), (Placement{0, 0, 1000, 600}));
}

TEST_F(PairTest, TilingShowsBothPanesSideBySide)
{
    resize(1000, 600);
    t.menus().mnuViewTileVertically.Click();
    EXPECT_TRUE(t.menus().mnuViewTileVertically.Checked);
    EXPECT_TRUE(editor.JoystickText.Visible);
    EXPECT_TRUE(editor.MacroText.Visible);
    EXPECT_EQ(editor.JoystickText.Place.get(), (Placement{3, 23, 496, 578}));
    EXPECT_EQ(editor.MacroText.Place.get(), (Placement{502, 23, 496, 578}));
    t.menus().mnuViewTileVertically.Click();
    EXPECT_FALSE(editor.MacroText.Visible);
    EXPECT_EQ(editor.JoystickText.Place.get(), (Placement{3, 23, 994, 578}));
}

TEST_F(PairTest, TilingWithTheMacroFrameSplitsOnlyWhatIsRightOfIt)
{
    resize(1000, 600);
    t.menus().mnuViewMacros.Click();
    t.menus().mnuViewTileVertically.Click();
    EXPECT_EQ(editor.JoystickText.Place.get(), (Placement{188, 23, 403, 578}));
    EXPECT_EQ(editor.MacroText.Place.get(), (Placement{185 + 407 + 2, 23, 403, 578}));
}

TEST_F(PairTest, ATinyWindowLeavesTheMoveOut)
{
    resize(1000, 600);
    const Placement before = editor.JoystickText.Place;
    resize(4, 10);
    EXPECT_EQ(editor.JoystickText.Place.get(), before);
}

TEST_F(PairTest, AClickIntoTheOtherTileSelectsItsTab)
{
    t.menus().mnuViewTileVertically.Click();
    Text_GotFocus(editor, editor.macro);
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 2);
    EXPECT_EQ(t.status(), "Editing untitled.m50");
}

TEST_F(PairTest, GettingTheFocusShowsTheLineUnlessHelpIsAskedFor)
{
    t.typeJoystick("a\r\nb\r\nc");
    Text_GotFocus(editor, editor.joystick);
    EXPECT_EQ(t.status(3), "Line no: 3");
    t.program().mum.StatusBar.Panels(3).Text = "kept";
    t.program().mum.MousePointer = MousePointer::ArrowQuestion;
    Text_GotFocus(editor, editor.joystick);
    EXPECT_EQ(t.status(3), "kept");
}

// ---- the macro frame's edge ----

TEST_F(PairTest, DraggingTheMacroFramesEdgeSetsItsWidthAndWritesItOnceAtTheEnd)
{
    resize(1000, 600);
    t.menus().mnuViewMacros.Click();
    FrameMacros_MouseMove(editor, false, 184 * 15.0F, true);
    EXPECT_EQ(editor.FrameMacros.MousePointer.get(), MousePointer::SizeWestEast);
    FrameMacros_MouseMove(editor, true, 249.9F * 15, false);
    EXPECT_EQ(t.settings().MacroFrameWidth, 250);
    EXPECT_EQ(editor.FrameMacros.Place.get().Width, 250);
    EXPECT_EQ(editor.TabStrip1Place.get().Left, 250);
    t.files.clearWrites();
    for (int x = 251; x <= 300; ++x) FrameMacros_MouseMove(editor, true, static_cast<float>(x) * 15, false);
    EXPECT_TRUE(t.files.writes().empty());
    FrameMacros_MouseMove(editor, false, 300 * 15.0F, true);
    EXPECT_EQ(t.files.writes().size(), 1U);
    EXPECT_EQ(t.ini("Miscellaneous", "MacroFrameWidth"), "301");
    FrameMacros_MouseMove(editor, false, 300 * 15.0F, true);
    EXPECT_EQ(t.files.writes().size(), 1U);
}

TEST_F(PairTest, DraggingLeftOf185LeavesItThereAndWritesNothingUnlessTheValueChanges)
{
    resize(1000, 600);
    t.menus().mnuViewMacros.Click();
    t.files.clearWrites();
    FrameMacros_MouseMove(editor, false, 184 * 15.0F, true);
    FrameMacros_MouseMove(editor, true, 20 * 15.0F, false);
    EXPECT_EQ(t.settings().MacroFrameWidth, 185);
    FrameMacros_MouseMove(editor, true, 300 * 15.0F, false);
    FrameMacros_MouseMove(editor, true, -20 * 15.0F, false);
    EXPECT_EQ(t.settings().MacroFrameWidth, 185);
    FrameMacros_MouseMove(editor, false, 20 * 15.0F, false);
    EXPECT_TRUE(t.files.writes().empty());
}

TEST_F(PairTest, TheWidthOnlyFollowsFromTheEdge)
{
    t.menus().mnuViewMacros.Click();
    FrameMacros_MouseMove(editor, false, 90 * 15.0F, false);
    FrameMacros_MouseMove(editor, true, 300 * 15.0F, false);
    EXPECT_EQ(t.settings().MacroFrameWidth, 185);
}

TEST_F(PairTest, AFrameWidthFromADamagedFileIsKeptWithinTheWindow)
{
    t.menus().mnuViewMacros.Click();
    for (const int width : {50, -5}) {
        t.settings().MacroFrameWidth = static_cast<std::int16_t>(width);
        resize(1000, 600);
        EXPECT_EQ(editor.FrameMacros.Place.get().Width, 185);
        EXPECT_EQ(editor.TabStrip1Place.get(), (Placement{185, 0, 815, 600}));
    }
    t.settings().MacroFrameWidth = 30000;
    resize(1000, 600);
    EXPECT_EQ(editor.FrameMacros.Place.get().Width, 880);
    EXPECT_EQ(editor.TabStrip1Place.get(), (Placement{880, 0, 120, 600}));
}

TEST_F(PairTest, AnEdgeDraggedBeyondA16BitNumberStopsThere)
{
    FrameMacros_MouseMove(editor, false, 0, true);
    FrameMacros_MouseMove(editor, true, 1e9F, false);
    EXPECT_EQ(t.settings().MacroFrameWidth, 32767);
}

// ---- hardware ----

TEST_F(PairTest, AnotherJoystickRenamesUntitledDocumentsAndLeavesNamedOnesAlone)
{
    t.files.addFile("c:\\a\\x.m50", "");
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.openBoth("c:\\a\\x.m50");
    ComboJoystick_Click(t.program().shared, 4);
    HardwareHasChanged(editor);
    EXPECT_EQ(editor.joystick.FileName, "untitled.adv");
    EXPECT_EQ(editor.joystick.FilePath, "c:\\tm\\b50progs\\untitled.adv");
    EXPECT_EQ(editor.TabStrip1.Tabs(1).Caption.get(), "untitled.adv");
    EXPECT_EQ(editor.macro.FileName, "x.m50");
    EXPECT_EQ(t.program().shared.HardwareChangedMark, 0);
}

TEST_F(PairTest, AnotherJoystickLeavesNoFormerNameInTheStatusText)
{
    editor.TabStrip1.Select(1);
    ASSERT_EQ(t.status(), "Editing untitled.b50");
    ComboJoystick_Click(t.program().shared, 4);
    HardwareHasChanged(editor);
    EXPECT_EQ(t.status(), "Editing untitled.adv");

    editor.TabStrip1.Select(2);
    t.menus().mnuPreferencesProtectMacroFile.Click();
    editor.TabStrip1.Select(2);
    ComboJoystick_Click(t.program().shared, 0);
    HardwareHasChanged(editor);
    EXPECT_EQ(t.status(), "untitled.m22 is protected and can't be edited.");

    editor.status("Done");
    ComboJoystick_Click(t.program().shared, 1);
    HardwareHasChanged(editor);
    EXPECT_EQ(t.status(), "Done") << "a text without a name stays";
}

TEST_F(PairTest, AnotherJoystickMakesNobodyMissTheFileOfAnUntitledDocumentThatWasSaved)
{
    t.settings().AutoSaveTime = 1;
    t.typeJoystick("mine");
    editor.Timer1.Tick();
    ASSERT_EQ(editor.joystick.Changed, changed::saved);
    ComboJoystick_Click(t.program().shared, 4);
    HardwareHasChanged(editor);
    OutsideNotices& notices = t.program().outsideNotices;
    lookForOutsideChanges(notices);
    EXPECT_FALSE(notices.joystick.Visible) << notices.joystick.Text.Caption.get();
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\untitled.b50"), "mine");

    t.typeJoystick(" too");
    editor.Timer1.Tick();
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\untitled.adv"), "mine too");
}

TEST_F(PairTest, AnotherJoystickEndsTheDownloadOfANamedFileThatIsNotForIt)
{
    t.files.addFile("c:\\a\\x.b50", "");
    t.files.addFile("c:\\a\\x.m50", "");
    t.openBoth("c:\\a\\x.b50");
    ASSERT_EQ(editor.macro.FileName, "x.m50");
    ASSERT_TRUE(t.menus().mnuSendToJoystick.Enabled);
    ComboJoystick_Click(t.program().shared, 4);
    HardwareHasChanged(editor);
    EXPECT_FALSE(t.menus().mnuSendToJoystick.Enabled);
    EXPECT_EQ(t.menus().mnuSendToJoystick.Caption.get(), "&Download ");
    ComboJoystick_Click(t.program().shared, 1);
    HardwareHasChanged(editor);
    EXPECT_TRUE(t.menus().mnuSendToJoystick.Enabled);
    EXPECT_EQ(t.menus().mnuSendToJoystick.Caption.get(), "&Download x.b50");
}

TEST_F(PairTest, TheF22ProHasItsCommandsAndNoQuietDownloads)
{
    t.settings().UseQonDownload = 1;
    t.menus().mnuAppsQuiet.Checked = true;
    ComboJoystick_Click(t.program().shared, 0);
    HardwareHasChanged(editor);
    EXPECT_TRUE(t.menus().mnuF22Setup.Visible);
    EXPECT_TRUE(t.menus().mnuAppDivider1.Visible);
    EXPECT_EQ(editor.FrameMacros.Command1[5].Caption.get(), "/F");
    EXPECT_EQ(t.menus().mnuSlashModifierArray[5].Caption.get(), "/F  format as repeating");
    EXPECT_FALSE(t.menus().mnuAppsQuiet.Checked);
    EXPECT_FALSE(t.menus().mnuAppsQuiet.Enabled);
    EXPECT_EQ(t.settings().UseQonDownload, 0);
    EXPECT_EQ(t.ini("Miscellaneous", "UseQonDownload"), "0");
}

TEST(HardwareHasChanged, ToF22ProKeepsQuietDownloadsOffAcrossStarts)
{
    TestProgram t(false);
    t.setIni("Miscellaneous", "UseQonDownload", "1");
    t.start();
    EXPECT_TRUE(t.menus().mnuAppsQuiet.Checked);
    ComboJoystick_Click(t.program().shared, 0);
    HardwareHasChanged(t.editor());
    t.program().shared.store.SaveOptions();
    t.start();
    EXPECT_FALSE(t.menus().mnuAppsQuiet.Checked);
    EXPECT_FALSE(t.menus().mnuAppsQuiet.Enabled);
    EXPECT_EQ(t.settings().UseQonDownload, 0);
}

TEST_F(PairTest, OtherJoysticksHaveQuietDownloadsOnlyWithWinLoad)
{
    t.settings().B50LoadPath = "c:\\winldir\\b50load.exe";
    F22MenusUpdate(editor);
    EXPECT_FALSE(t.menus().mnuAppsQuiet.Enabled);
    EXPECT_FALSE(t.menus().mnuF22Reset.Visible);
    EXPECT_EQ(editor.FrameMacros.Command1[5].Caption.get(), "/A");
    EXPECT_EQ(t.menus().mnuSlashModifierArray[5].Caption.get(), "/A  force analogue");
    t.settings().B50LoadPath = "c:\\tm\\winld.exe";
    F22MenusUpdate(editor);
    EXPECT_TRUE(t.menus().mnuAppsQuiet.Enabled);
}

// ---- keys ----

TEST_F(PairTest, AKeyRunsTheCommandOfThePaneThatIsSelected)
{
    std::string ran;
    t.menus().mnuFileNewJoystick.handler = [&] { ran += "joystick "; };
    t.menus().mnuFileNewMacro.handler = [&] { ran += "macro"; };
    EXPECT_TRUE(pressPaneKey(editor, "Ctrl+N"));
    editor.TabStrip1.Select(2);
    EXPECT_TRUE(pressPaneKey(editor, "Ctrl+N"));
    EXPECT_EQ(ran, "joystick macro");
}

TEST_F(PairTest, AKeyOfADisabledOrMissingCommandIsLeftToThePane)
{
    t.menus().mnuEditCut.Enabled = false;
    EXPECT_FALSE(pressPaneKey(editor, "Ctrl+X"));
    t.menus().mnuEditFind.handler = nullptr;
    EXPECT_FALSE(pressPaneKey(editor, "Ctrl+F")) << "nobody does it";
    EXPECT_FALSE(pressPaneKey(editor, "Ctrl+Q"));
}

TEST_F(PairTest, CtrlTabReachesTheOtherTabAndBack)
{
    int focused = 0;
    const auto listening = editor.MacroText.focusWanted.connect([&] { ++focused; });
    selectOtherTab(editor);
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 2);
    EXPECT_EQ(focused, 1);
    EXPECT_EQ(editor.JoystickText.Text() + editor.MacroText.Text(), "");
    selectOtherTab(editor);
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 1);
}

} // namespace
} // namespace tarvex
