#include "composer/find_button.h"

#include "composer/composer_fixture.h"
#include "documents/editing/pane_events.h"

namespace tarvex {
namespace {

struct FindButtonTest : ComposerTest {
    FindButtonTest() { use(0, 1); }
    std::int64_t caret() { return static_cast<std::int64_t>(editor.joystick.Caret); }
    /// The flash that a search ends with goes by.
    void waitForFlash()
    {
        while (editor.TimerBlinkLine.Enabled) editor.TimerBlinkLine.Tick();
    }
    static constexpr int t1 = 32;
};

TEST_F(FindButtonTest, ASecondClickOnT1PutsTheCaretBehindTheFirst)
{
    button(t1);
    t.typeJoystick("Fire\r\n");
    putCaret(static_cast<std::int64_t>(joystick.TextLength()));
    button(t1);
    waitForFlash();
    EXPECT_EQ(joystick.Text(), "BTN T1 Fire\r\n");
    EXPECT_EQ(joystick.SelStart(), 7);
    EXPECT_EQ(caret(), 7);
    EXPECT_EQ(window.InsertNeeded, 0);
}

TEST_F(FindButtonTest, WithAlwaysInsertTheSecondClickAddsASecondLine)
{
    settings.AlwaysInsert = 1;
    button(t1);
    putCaret(0);
    button(t1);
    EXPECT_EQ(joystick.Text(), "BTN T1 \r\nBTN T1 ");
}

TEST_F(FindButtonTest, WithAnEmptyJoystickFileNothingIsSearchedAndTheTabStays)
{
    editor.TabStrip1.Select(2);
    FindButton(window, "BTN T1 ");
    EXPECT_EQ(window.InsertNeeded, 1);
    EXPECT_EQ(editor.TabStrip1.SelectedItem.get(), 2);
}

TEST_F(FindButtonTest, OtherwiseTheJoystickTabIsSelected)
{
    write("BTN T1 ");
    editor.TabStrip1.Select(2);
    FindButton(window, "BTN T1 ");
    EXPECT_EQ(editor.TabStrip1.SelectedItem.get(), 1);
    EXPECT_EQ(window.InsertNeeded, 0);
}

TEST_F(FindButtonTest, RNGInACommentIsAHit)
{
    write("Rem the RNG knob\r\n");
    FindButton(window, "RNG");
    EXPECT_EQ(window.InsertNeeded, 0);
    EXPECT_EQ(caret(), 11);
}

TEST_F(FindButtonTest, WordsOfAxesAreFoundAsWholeWordsOnly)
{
    for (const char* word : {"RNG", "ANT", "RDDR", "JSX", "JSY", "THR"}) {
        joystick.setText(std::string("x") + word + "x");
        FindButton(window, word);
        EXPECT_EQ(window.InsertNeeded, 1) << word;
        joystick.setText(std::string("x ") + word + " x");
        FindButton(window, word);
        EXPECT_EQ(window.InsertNeeded, 0) << word;
    }
}

TEST_F(FindButtonTest, OtherTextsAreFoundInAnyCaseAndInsideWords)
{
    write("xbtn t1 y");
    FindButton(window, "BTN T1 ");
    EXPECT_EQ(window.InsertNeeded, 0);
    EXPECT_EQ(caret(), 8);
}

TEST_F(FindButtonTest, T1IsNotFoundInT10)
{
    write("BTN T10 x");
    FindButton(window, "BTN T1 ");
    EXPECT_EQ(window.InsertNeeded, 1);
}

TEST_F(FindButtonTest, WithoutAHitTheCaretStaysWhereItWas)
{
    write("BTN S1 x\r\nBTN S2 y");
    putCaret(4);
    FindButton(window, "BTN T1 ");
    waitForFlash();
    EXPECT_EQ(caret(), 4);
    EXPECT_EQ(joystick.SelStart(), 4);
}

TEST_F(FindButtonTest, TheLineAtTheCaretFlashes)
{
    write("BTN S1 x\r\n/M z\r\nBTN S2 y");
    FindButton(window, "BTN S1 ");
    EXPECT_TRUE(editor.TimerBlinkLine.Enabled);
    EXPECT_EQ(joystick.SelText(), "BTN S1 x");
    editor.TimerBlinkLine.Tick();
    EXPECT_EQ(joystick.SelStart(), 7);
    EXPECT_EQ(joystick.SelLength(), 0);
    editor.TimerBlinkLine.Tick();
    EXPECT_EQ(joystick.SelText(), "BTN S1 x");
}

TEST_F(FindButtonTest, WithHighlightDefinitionsTheWholeStatementFlashes)
{
    settings.HighlightDefinitions = 1;
    write("BTN S1 x\r\n/M z\r\nBTN S2 y");
    FindButton(window, "BTN S1 ");
    EXPECT_EQ(joystick.SelText(), "BTN S1 x\r\n/M z");
    waitForFlash();
    EXPECT_EQ(joystick.SelStart(), 7);
}

TEST_F(FindButtonTest, WithHighlightDefinitionsTheStatementOfThatNameFlashesAndNoneBeforeIt)
{
    settings.HighlightDefinitions = 1;
    write("BTN S1 x\r\nBTN S2 y\r\n/M z\r\nBTN S3 w");
    FindButton(window, "BTN S2 ");
    EXPECT_EQ(joystick.SelText(), "BTN S2 y\r\n/M z");
}

TEST_F(FindButtonTest, WhatIsInsertedDuringTheFlashGoesBehindTheName)
{
    write("BTN S1 \r\nBTN S2 y");
    FindButton(window, "BTN S1 ");
    window.SlashButton[0].Click();
    EXPECT_EQ(joystick.Text(), "BTN S1 /U \r\nBTN S2 y");
}

TEST_F(FindButtonTest, WhatIsTypedDuringTheFlashGoesBehindTheName)
{
    write("BTN S1 \r\nBTN S2 y");
    FindButton(window, "BTN S1 ");
    t.pressKeys(joystick, "x");
    EXPECT_EQ(joystick.Text(), "BTN S1 x\r\nBTN S2 y");
}

TEST_F(FindButtonTest, AKeyThatIsReleasedInTheFileDuringTheFlashLeavesTheCaretBehindTheName)
{
    write("BTN S1 \r\nBTN S2 y");
    FindButton(window, "BTN S1 "); // as by Return on the picture
    Text_KeyUp(editor, editor.joystick);
    waitForFlash();
    EXPECT_EQ(joystick.SelStart(), 7);
    EXPECT_EQ(caret(), 7);
}

TEST_F(FindButtonTest, WhatIsPastedDuringTheFlashGoesBehindTheName)
{
    write("BTN S1 \r\nBTN S2 y");
    t.clipboard.content = {"Fire", ""};
    FindButton(window, "BTN S1 ");
    EXPECT_TRUE(Text_KeyDown(editor, editor.joystick, "Ctrl+V"));
    EXPECT_EQ(joystick.Text(), "BTN S1 Fire\r\nBTN S2 y");
}

TEST_F(FindButtonTest, AMegabyteWithoutLineEndsIsSearched)
{
    write(std::string(1 << 20, 'x') + " BTN T1 y");
    button(t1);
    EXPECT_EQ(window.InsertNeeded, 0);
    EXPECT_EQ(caret(), (1 << 20) + 8);
}

} // namespace
} // namespace tarvex
