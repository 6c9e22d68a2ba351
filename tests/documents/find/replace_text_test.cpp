#include "documents/find/replace_text.h"

#include "find_fixture.h"

namespace tarvex {
namespace {

constexpr Colour red = 0x0000FF;

struct Replace : FindFixture {
    Replace()
    {
        joystick.setText("ab ab ab");
        t.menus().mnuEditReplace.Click();
        editor.joystick.Changed = changed::saved;
    }
    void expectReplaced(const std::string& count, const std::string& file = "untitled.b50")
    {
        expectBox("Replaced 'em all for you. Now buy me a drink", count + " replacements were made in " + file,
                  BoxIcon::Information);
    }
};

TEST_F(Replace, IsOfferedOnlyAfterASuccessfulFind)
{
    EXPECT_FALSE(window.Command5.Enabled);
    EXPECT_FALSE(window.Command6.Enabled);
    findToReplace("x");
    EXPECT_FALSE(window.Command5.Enabled);
    findToReplace("ab");
    EXPECT_TRUE(window.Command5.Enabled);
    EXPECT_TRUE(window.Command6.Enabled);
}

TEST_F(Replace, ReplacesWhatTheLastFindSelectedAndTheNextSearchSkipsAsMuch)
{
    joystick.setText("ab ab ab    ab");
    editor.joystick.Changed = changed::saved;
    findToReplace("ab");
    window.Command3.Click();
    window.ComboTextReplaceWith.Text = "xyz";
    window.Command5.Click();
    EXPECT_EQ(joystick.Text(), "ab xyz ab    ab");
    EXPECT_EQ(editor.joystick.Caret, 5 + 3) << "behind the match, and the replacement's length on top";
    EXPECT_FALSE(window.Command5.Enabled);
    EXPECT_FALSE(window.Command6.Enabled);
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
    EXPECT_EQ(window.ComboTextReplaceWith.Items.get(), std::vector<std::string>{"xyz"});
    window.Command3.Click();
    expectSelected(joystick, 13, 2);
    EXPECT_TRUE(window.Command5.Enabled);
}

TEST_F(Replace, AnEmptyReplacementDeletesAndLeavesCaretAndHistory)
{
    findToReplace("ab");
    window.Command5.Click();
    EXPECT_EQ(joystick.Text(), " ab ab");
    EXPECT_EQ(editor.joystick.Caret, 2);
    EXPECT_TRUE(window.ComboTextReplaceWith.Items.get().empty());
}

TEST_F(Replace, GivesTheKeyboardToTheSearchForTheNext)
{
    joystick.setText("fire fire");
    findToReplace("fire");
    int focused = 0;
    const auto listening = window.Command3.focusWanted.connect([&] { ++focused; });
    window.Command5.Click();
    EXPECT_EQ(focused, 1);
}

TEST_F(Replace, OverAFlashingLineLeavesTheLine)
{
    joystick.setText("BTN S1 fire");
    findToReplace("fire");
    window.ComboTextReplaceWith.Text = "REM ";
    t.menus().mnuViewHighlightLine.Click();
    window.Command5.Click();
    EXPECT_EQ(joystick.Text(), "REM BTN S1 fire");
}

TEST_F(Replace, IsOfferedByNoSearchThatFoundNothingToSeek)
{
    joystick.setText("fire");
    findToReplace("");
    EXPECT_FALSE(window.Command5.Enabled);
    joystick.setText("");
    findToReplace("fire");
    EXPECT_FALSE(window.Command5.Enabled);
    EXPECT_FALSE(window.Command6.Enabled);
}

TEST_F(Replace, AllEndsTheSearchAndShowsItsProgress)
{
    joystick.setText("fire and fire");
    findToReplace("fire");
    ASSERT_EQ(window.Command3.Caption.get(), findNext);
    ProgressBar& bar = t.program().mum.ProgressBar1;
    bar.Min = 7;
    bar.Value = 50;
    std::vector<int> shown;
    const auto listening = bar.Value.changed.connect([&] {
        EXPECT_TRUE(bar.Visible);
        EXPECT_EQ(bar.Min, 0);
        EXPECT_EQ(bar.Max, static_cast<int>(joystick.TextLength()));
        shown.push_back(bar.Value);
    });
    replaceAll("fire", "ab");
    EXPECT_EQ(joystick.Text(), "ab and ab");
    EXPECT_EQ(shown, (std::vector<int>{0, 2, 9}));
    EXPECT_FALSE(bar.Visible);
    EXPECT_EQ(window.FoundPosition, -1);
    EXPECT_EQ(window.Command3.Caption.get(), findFirst);
    EXPECT_FALSE(window.Command5.Enabled);
    EXPECT_FALSE(window.Command6.Enabled);
}

TEST_F(Replace, IsAnUndoLevel)
{
    t.typeJoystick("Z");
    findToReplace("ab");
    window.ComboTextReplaceWith.Text = "x";
    window.Command5.Click();
    EXPECT_EQ(joystick.Text(), "Zx ab ab");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "Zab ab ab");
}

TEST_F(Replace, TakesTheFormatOfWhatItReplacesAndLeavesTheRest)
{
    joystick.setSelStart(3);
    joystick.setSelLength(2);
    joystick.setSelColor(red);
    findToReplace("ab");
    window.Command3.Click();
    window.ComboTextReplaceWith.Text = "xyz";
    window.Command5.Click();
    for (std::size_t i = 0; i < joystick.TextLength(); ++i)
        EXPECT_EQ(joystick.formatAt(i).colour, i >= 3 && i < 6 ? red : 0) << i;
}

TEST_F(Replace, WritesIntoTheChosenFile)
{
    macro.setText("ab");
    window.OptionMacroR.Click();
    findToReplace("ab");
    window.ComboTextReplaceWith.Text = "x";
    window.Command5.Click();
    EXPECT_EQ(macro.Text(), "x");
    EXPECT_EQ(editor.macro.Changed, changed::modified);
    EXPECT_EQ(joystick.Text(), "ab ab ab");
    EXPECT_EQ(editor.joystick.Changed, changed::saved);
}

TEST_F(Replace, OfATextTypedByTheUserWritesTheCodePagesBytes)
{
    findToReplace("ab");
    window.ComboTextReplaceWith.Text = "ä漢";
    window.Command5.Click();
    EXPECT_EQ(joystick.Text(), "\xE4? ab ab");
}

struct ProtectedReplace : Replace {
    ProtectedReplace()
    {
        macro.setText("ab ab");
        editor.macro.Changed = changed::saved;
        t.menus().mnuPreferencesProtectMacroFile.Click();
        window.OptionMacroR.Click();
        findToReplace("ab");
        window.ComboTextReplaceWith.Text = "x";
        editor.status("");
    }
    void expectRefused()
    {
        EXPECT_EQ(t.status(), "untitled.m50 is protected and can't be edited.");
        EXPECT_EQ(macro.Text(), "ab ab");
        EXPECT_EQ(editor.macro.Changed, changed::saved);
        EXPECT_EQ(t.program().shared.IsLoading, 0);
        EXPECT_TRUE(t.dialogues.boxes.empty());
    }
};

TEST_F(ProtectedReplace, OneIsRefused)
{
    window.Command5.Click();
    expectRefused();
}

TEST_F(ProtectedReplace, AllIsRefused)
{
    window.Command6.Click();
    expectRefused();
}

// ---- replace all ----

TEST_F(Replace, AllReplacesEveryMatchAndCountsOneLess)
{
    replaceAll("ab", "xyz");
    EXPECT_EQ(joystick.Text(), "xyz xyz xyz");
    expectReplaced("2");
    expectSelected(joystick, 11, 0);
    EXPECT_EQ(editor.joystick.Caret, 11);
    EXPECT_EQ(window.Command3.Caption.get(), "Find first");
    EXPECT_FALSE(window.Command5.Enabled);
    EXPECT_FALSE(window.Command6.Enabled);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
    EXPECT_FALSE(t.program().mum.ProgressBar1.Visible);
    EXPECT_EQ(t.program().mum.ProgressBar1.Max, 11);
    EXPECT_EQ(window.ComboTextReplaceWith.Items.get(), std::vector<std::string>{"xyz"});
}

TEST_F(Replace, AllOfOneOccurrenceReplacesItAndSaysZero)
{
    joystick.setText("only ab here");
    replaceAll("ab", "x");
    EXPECT_EQ(joystick.Text(), "only x here");
    expectReplaced("0");
}

TEST_F(Replace, AllForATextThatDoesntOccurInsertsTheReplacementOnceAndReportsZero)
{
    joystick.setSelStart(2);
    replaceAll("nowhere", "xyz");
    EXPECT_EQ(joystick.Text(), "abxyz ab ab");
    expectReplaced("0");
    EXPECT_EQ(editor.joystick.Caret, 2) << "the replacement's length less one";
    expectSelected(joystick, 2, 0);
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
}

TEST_F(Replace, AllForATextThatDoesntOccurOverwritesTheSelection)
{
    joystick.setSelStart(0);
    joystick.setSelLength(5);
    replaceAll("nowhere", "x");
    EXPECT_EQ(joystick.Text(), "x ab");
    expectReplaced("0");
}

TEST_F(Replace, AllForATextThatDoesntOccurByNothingPutsTheCaretBeforeTheTextWhichFailsAndIsReported)
{
    joystick.setSelStart(4);
    replaceAll("nowhere", "");
    EXPECT_EQ(joystick.Text(), "ab ab ab");
    expectReplaced("0");
    EXPECT_EQ(failedIn(), "FIND Command6_Click");
    EXPECT_EQ(editor.joystick.Caret, -1);
    expectSelected(joystick, 4, 0);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
}

TEST_F(Replace, AllOfNothingOrInNothingIsReportedLikeASearch)
{
    replaceAll("", "x");
    expectBox("Please enter text to search", "You haven't specified the text to search for", BoxIcon::Exclamation);
    joystick.setText("");
    editor.joystick.Changed = changed::saved;
    replaceAll("ab", "x");
    expectBox("No text in joystick file", "untitled.b50 has no text to highlight.", BoxIcon::Exclamation);
    EXPECT_EQ(joystick.Text(), "");
    EXPECT_EQ(editor.joystick.Changed, changed::saved);
    macro.setText("");
    window.OptionMacroR.Click();
    window.Command6.Click();
    expectBox("No text in macro file", "untitled.m50 has no text to highlight.", BoxIcon::Exclamation);
}

TEST_F(Replace, AllIsOneUndoLevel)
{
    t.typeJoystick("Z");
    const std::size_t levels = editor.joystick.Undo.Levels.size();
    replaceAll("ab", "x");
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), levels + 1);
    EXPECT_EQ(editor.joystick.TakeNewLevel, 1);
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "Zab ab ab");
    t.menus().mnuEditRedo.Click();
    EXPECT_EQ(joystick.Text(), "Zx x x");
}

TEST_F(Replace, AllInTheMacroFileShowsItAndMarksIt)
{
    macro.setText("ab");
    editor.macro.Changed = changed::saved;
    window.OptionMacroR.Click();
    replaceAll("ab", "x");
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 2);
    EXPECT_EQ(macro.Text(), "x");
    expectReplaced("0", "untitled.m50");
    EXPECT_EQ(editor.macro.Changed, changed::modified);
    EXPECT_EQ(editor.joystick.Changed, changed::saved);
}

TEST_F(Replace, AllObeysCaseAndWholeWords)
{
    joystick.setText("ab AB abc ab");
    tick(window.MatchCaseR);
    tick(window.WholeWordR);
    replaceAll("ab", "x");
    EXPECT_EQ(joystick.Text(), "x AB abc x");
    expectReplaced("1");
}

TEST_F(Replace, AllByATextThatHoldsWhatIsSoughtEnds)
{
    replaceAll("ab", "abab");
    EXPECT_EQ(joystick.Text(), "abab abab abab");
    expectReplaced("2");
}

TEST_F(Replace, AllByNothingCanEmptyThePaneWhichKeepsItsIndent)
{
    joystick.setText("ababab");
    replaceAll("ab", "");
    EXPECT_EQ(joystick.Text(), "");
    EXPECT_EQ(joystick.SelIndent(), 20);
    expectReplaced("2");
}

TEST_F(Replace, AllOverAFlashingLineLeavesTheLine)
{
    joystick.setText("ab\r\ncd");
    t.menus().mnuViewHighlightLine.Click();
    replaceAll("nowhere", "x");
    EXPECT_EQ(joystick.Text(), "xab\r\ncd");
}

TEST_F(Replace, AllInMoreThan32767CharactersReachesTheEnd)
{
    std::string text;
    for (int i = 0; i < 15'000; ++i) text += "ab ";
    joystick.setText(text);
    replaceAll("ab", "c");
    expectReplaced("14999");
    EXPECT_EQ(joystick.Text().find('a'), std::string::npos);
    EXPECT_EQ(joystick.TextLength(), 30'000U);
}

TEST_F(Replace, AllEndsAtAMatchThatComesToStandAtPosition65535)
{
    const std::string blanks(65'529, ' ');
    joystick.setText("ab" + blanks + "ab ab ab"); // the matches behind the first come to stand at 65,532 and 65,536
    replaceAll("ab", "xyz");
    expectReplaced("3");
    joystick.setText("ab" + blanks + "   ab ab"); // at 65,535
    replaceAll("ab", "xyz");
    expectReplaced("0");
    EXPECT_EQ(joystick.Text(), "xyz" + blanks + "   ab ab");
    EXPECT_EQ(editor.joystick.Caret, 3);
    expectSelected(joystick, 3, 0);
}

TEST_F(Replace, AllStillReplacesAFirstMatchAtPosition65535)
{
    joystick.setText(std::string(65'535, ' ') + "ab ab");
    replaceAll("ab", "x");
    EXPECT_EQ(joystick.Text(), std::string(65'535, ' ') + "x ab");
    expectReplaced("0");
}

TEST_F(Replace, AllOfATextOf10000Characters)
{
    const std::string text(10'000, 'x');
    joystick.setText(text + text + "y" + text);
    replaceAll(text, "z");
    EXPECT_EQ(joystick.Text(), "zzyz");
    expectReplaced("2");
}

} // namespace
} // namespace tarvex
