#include "documents/editing/line_highlight.h"

#include "documents/editing/pane_change.h"
#include "documents/editing/pane_events.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct LineHighlight : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Pane& joystick = editor.JoystickText;
    Pane& macro = editor.MacroText;

    LineHighlight()
    {
        joystick.setText("one\r\ntwo two\r\n\r\nfour");
        macro.setText("A = a\r\nB = b");
    }
    void tick()
    {
        ASSERT_TRUE(editor.TimerBlinkLine.Enabled);
        editor.TimerBlinkLine.Tick();
    }
    static void expectSelected(const Pane& pane, std::int64_t start, std::int64_t length)
    {
        EXPECT_EQ(pane.SelStart(), start);
        EXPECT_EQ(pane.SelLength(), length);
    }
};

TEST_F(LineHighlight, SelectsTheLineOfTheCaret)
{
    joystick.setSelStart(9);
    HighlightLineAtIP(editor);
    expectSelected(joystick, 5, 7);
    EXPECT_EQ(editor.joystick.Caret, 5);
    EXPECT_EQ(editor.HighlightLength, 7);
    EXPECT_EQ(t.status(3), "Line no: 2");
    joystick.setSelStart(20);
    HighlightLineAtIP(editor);
    expectSelected(joystick, 16, 4);
    EXPECT_EQ(editor.HighlightLength, 4);
    joystick.setSelStart(14);
    HighlightLineAtIP(editor);
    expectSelected(joystick, 14, 0);
}

TEST_F(LineHighlight, AnEmptyPaneDoesNothing)
{
    joystick.setText("");
    HighlightLineAtIP(editor);
    t.menus().mnuViewHighlightLine.Click();
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
}

TEST_F(LineHighlight, FlashesOffOnOffAndEndsWithACaretAtTheLinesBeginning)
{
    joystick.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    EXPECT_EQ(editor.TimerBlinkLine.Interval, 100);
    expectSelected(joystick, 5, 7);
    tick();
    expectSelected(joystick, 5, 0);
    EXPECT_EQ(editor.HighlightLength, 0);
    tick();
    expectSelected(joystick, 5, 7);
    tick();
    expectSelected(joystick, 5, 0);
    tick();
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    expectSelected(joystick, 5, 0);
}

TEST_F(LineHighlight, ACaretThatTheUserMovesMeanwhileGoesBack)
{
    joystick.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    tick();
    tick();
    joystick.setSelStart(1); // the record of the caret follows later
    tick();
    expectSelected(joystick, 5, 0);
}

TEST_F(LineHighlight, AnEditMeanwhileEndsIt)
{
    joystick.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    tick();
    joystick.userEdit(5, 0, "x");
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    expectSelected(joystick, 6, 0);
}

TEST_F(LineHighlight, AnEditThatComesMeanwhileFindsNoLineSelected)
{
    joystick.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    ASSERT_EQ(joystick.SelLength(), 7);
    joystick.EditComing();
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    EXPECT_EQ(joystick.SelLength(), 0);
}

TEST_F(LineHighlight, WhatIsSelectedAsAWholeMeanwhileStaysSelected)
{
    joystick.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    t.menus().mnuEditSelectAll.Click();
    while (editor.TimerBlinkLine.Enabled) editor.TimerBlinkLine.Tick();
    expectSelected(joystick, 0, static_cast<std::int64_t>(joystick.TextLength()));
}

TEST_F(LineHighlight, ALineThatFlashesIsNotCopied)
{
    t.clipboard.content = {"mine", ""};
    joystick.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    t.menus().mnuEditCopy.Click();
    EXPECT_EQ(t.clipboard.content.text, "mine");
}

TEST_F(LineHighlight, AnEditOfTheOtherPaneLeavesItFlashing)
{
    joystick.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    macro.setText("x");
    EXPECT_TRUE(editor.TimerBlinkLine.Enabled);
    tick();
    expectSelected(joystick, 5, 0);
}

TEST_F(LineHighlight, AUserWhoGoesToTheOtherTabFindsHisCaretThereAndNoLineSelectedBehindHim)
{
    joystick.setSelStart(9);
    macro.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    editor.TabStrip1.Select(2);
    tick();
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    expectSelected(joystick, 5, 0);
    expectSelected(macro, 9, 0);
}

TEST_F(LineHighlight, ALineOfTheOtherPaneTakesItsTurn)
{
    joystick.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    editor.TabStrip1.Select(2);
    macro.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    expectSelected(joystick, 5, 0);
    expectSelected(macro, 7, 5);
    tick();
    expectSelected(macro, 7, 0);
}

TEST_F(LineHighlight, TheTimerOverAModalBoxLeavesItsTextAlone)
{
    t.typeJoystick("x");
    t.menus().mnuViewHighlightLine.Click();
    const std::string text = joystick.Text();
    t.dialogues.filesToSave = {std::nullopt};
    t.dialogues.whileSaving = [&] {
        while (editor.TimerBlinkLine.Enabled) editor.TimerBlinkLine.Tick();
    };
    t.menus().mnuFileSaveAs.Click();
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    EXPECT_EQ(joystick.Text(), text);
    expectSelected(joystick, 0, 0);
}

TEST_F(LineHighlight, ATickAfterTheTextWentAwayFindsNothingToSelect)
{
    joystick.setSelStart(9);
    t.menus().mnuViewHighlightLine.Click();
    tick();
    joystick.setText("");
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    editor.TimerBlinkLine.Tick(); // one that was on its way
    expectSelected(joystick, 0, 0);
}

// ---- a line by its number ----

TEST_F(LineHighlight, AnErrorLineIsShownAndFlashes)
{
    editor.TabStrip1.Select(2);
    HighlightErrorLine(editor, 2);
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 1);
    expectSelected(joystick, 5, 7);
    EXPECT_TRUE(editor.TimerBlinkLine.Enabled);
    EXPECT_EQ(t.status(3), "Line no: 2");
    HighlightErrorLine(editor, 4);
    expectSelected(joystick, 16, 4);
}

TEST_F(LineHighlight, Line0OrANumberBeyondTheEndIsInvalid)
{
    for (const std::int64_t line : {0, -3, 5}) {
        t.dialogues.boxes.clear();
        HighlightErrorLine(editor, line);
        ASSERT_EQ(t.dialogues.boxes.size(), 1U) << line;
        EXPECT_EQ(t.lastBox().title, "Hmmm....bizarre...");
        EXPECT_EQ(t.lastBox().text, "The line number is invalid");
        EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
        EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    }
    t.dialogues.boxes.clear();
    HighlightErrorLine(editor, 1);
    EXPECT_TRUE(t.dialogues.boxes.empty());
    expectSelected(joystick, 0, 3);
}

TEST_F(LineHighlight, AnErrorLineIsMarkedAndJumpedTo)
{
    std::vector<int> jumps;
    const Connection jumped = editor.Jumped.connect([&](const Side& side) { jumps.push_back(side.tab); });
    HighlightErrorLine(editor, 4);
    EXPECT_EQ(editor.joystick.ErrorLine.line(), 3);
    EXPECT_EQ(jumps, std::vector<int>{1});
}

// ---- text that flashes while the caret stays ----

TEST_F(LineHighlight, ATextFlashesOffOnOffAndTheCaretComesBackToItsPlace)
{
    joystick.setSelStart(9);
    flashText(editor, 16, 4);
    EXPECT_EQ(editor.joystick.Caret, 9);
    for (int i = 0; i < 2; ++i) {
        expectSelected(joystick, 16, 4);
        EXPECT_EQ(editor.HighlightLength, 4);
        tick();
        expectSelected(joystick, 9, 0);
        EXPECT_EQ(editor.HighlightLength, 0);
        tick();
    }
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    expectSelected(joystick, 9, 0);
}

TEST_F(LineHighlight, ASecondTextFlashesFromItsBeginningAndTheCaretStillComesBack)
{
    joystick.setSelStart(9);
    flashText(editor, 16, 4);
    tick();
    tick();
    flashText(editor, 0, 3);
    EXPECT_EQ(editor.joystick.Caret, 9);
    tick();
    tick();
    expectSelected(joystick, 0, 3);
    tick();
    tick();
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    expectSelected(joystick, 9, 0);
}

TEST_F(LineHighlight, TheLineOfTheCaretFlashesAndTheCaretStaysWithinIt)
{
    joystick.setSelStart(9);
    flashLine(editor);
    expectSelected(joystick, 5, 7);
    tick();
    expectSelected(joystick, 9, 0);
    endBlinking(editor);
    joystick.setSelStart(18);
    flashLine(editor);
    expectSelected(joystick, 16, 4);
    endBlinking(editor);
    expectSelected(joystick, 18, 0);
    joystick.setText("");
    flashLine(editor);
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled) << "there is none";
}

TEST_F(LineHighlight, TheCaretIsNotRecordedInAPaneWhoseTextFlashes)
{
    joystick.setSelStart(9);
    macro.setSelStart(2);
    flashText(editor, 16, 4);
    EXPECT_TRUE(flashesForCaret(editor, editor.joystick));
    EXPECT_FALSE(flashesForCaret(editor, editor.macro));
    recordCaret(editor, editor.joystick);
    recordCaret(editor, editor.macro);
    EXPECT_EQ(editor.joystick.Caret, 9);
    EXPECT_EQ(editor.macro.Caret, 2);
    endBlinking(editor);
    EXPECT_FALSE(flashesForCaret(editor, editor.joystick));
    joystick.setSelStart(3);
    recordCaret(editor, editor.joystick);
    EXPECT_EQ(editor.joystick.Caret, 3);
}

TEST_F(LineHighlight, ALineThatFlashesNextIsNoTextOfThatKind)
{
    joystick.setSelStart(9);
    flashText(editor, 16, 4);
    endBlinking(editor);
    t.menus().mnuViewHighlightLine.Click();
    EXPECT_FALSE(flashesForCaret(editor, editor.joystick));
    tick();
    tick();
    expectSelected(joystick, 5, 7);
    EXPECT_EQ(editor.joystick.Caret, 5);
}

// ---- what the panes look like, and where they were left ----

TEST_F(LineHighlight, TheSchemeGivesAPaneItsGroundAndFontAndPaintsItAnew)
{
    int repaints = 0;
    const Connection refreshed = macro.refreshWanted.connect([&] { ++repaints; });
    t.settings().MacroBackgroundColour = 0x123456;
    t.settings().TextFontSize = 17;
    applyScheme(editor, editor.macro);
    EXPECT_EQ(macro.BackColor, 0x123456);
    EXPECT_EQ(macro.Font().size, 17);
    EXPECT_EQ(repaints, 1);
}

TEST_F(LineHighlight, AKeyThatGoesToTheOtherPaneLeavesTheCaretNoted)
{
    joystick.setSelStart(9);
    EXPECT_TRUE(Text_KeyDown(editor, editor.joystick, "Ctrl+Tab"));
    EXPECT_EQ(editor.joystick.Caret, 9);
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 2);
}

} // namespace
} // namespace tarvex
