#include "documents/find/goto_line.h"

#include "find_fixture.h"

namespace tarvex {
namespace {

struct GotoLine : FindFixture {
    GotoLine()
    {
        joystick.setText("one\r\ntwo two\r\n\r\nfour");
        t.menus().mnuEditGoto.Click();
    }
    void go(const std::string& line)
    {
        window.LineToFind.Text = line;
        window.Command7.Click();
    }
    void expectInvalid(const std::string& line)
    {
        joystick.setSelStart(4);
        int focused = 0;
        const auto focus = window.LineToFind.focusWanted.connect([&] { ++focused; });
        go(line);
        expectBox("Check the value you entered!", "The line number is invalid", BoxIcon::Exclamation);
        EXPECT_EQ(focused, 1) << line;
        expectSelected(joystick, 4, 0);
    }
};

TEST_F(GotoLine, SelectsTheWholeLineWithItsEnd)
{
    go("2");
    expectSelected(joystick, 5, 9);
    EXPECT_EQ(editor.joystick.Caret, 5);
    EXPECT_EQ(editor.joystick.SelectionLength, 9);
    EXPECT_EQ(t.status(3), "Line no: 2");
    go("3");
    expectSelected(joystick, 14, 2);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(GotoLine, TheLastLineIsSelectedToTheEndOfTheText)
{
    go("4");
    expectSelected(joystick, 16, 4);
    joystick.setText("a\r\n");
    go("2");
    expectSelected(joystick, 3, 0);
}

TEST_F(GotoLine, Line0OrANumberBeyondTheEndIsInvalid)
{
    expectInvalid("0");
    expectInvalid("5");
    expectInvalid("-1");
    expectInvalid("1e400");
    go("1");
    expectSelected(joystick, 0, 5);
}

TEST_F(GotoLine, ALineThatFlashesComesToRestAndThePlaceIsShown)
{
    int jumps = 0;
    const auto listening = editor.Jumped.connect([&](const Side&) { ++jumps; });
    t.menus().mnuViewHighlightLine.Click();
    go("2");
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    EXPECT_EQ(jumps, 1);
}

TEST_F(GotoLine, ATextThatIsntANumberIsInvalid)
{
    expectInvalid("two");
    expectInvalid("");
    expectInvalid("x2");
    expectInvalid("0.9");
}

TEST_F(GotoLine, AFractionGoesToTheWholeNumberBelow)
{
    go("3.7");
    expectSelected(joystick, 14, 2);
    EXPECT_EQ(t.status(3), "Line no: 3");
}

TEST_F(GotoLine, ANumberWithATextBehindItCounts)
{
    go(" 2nd");
    expectSelected(joystick, 5, 9);
}

TEST_F(GotoLine, AnEmptyFileHasOneLine)
{
    joystick.setText("");
    go("1");
    EXPECT_TRUE(t.dialogues.boxes.empty());
    go("2");
    EXPECT_EQ(t.lastBox().text, "The line number is invalid");
}

TEST_F(GotoLine, IsAlwaysInTheJoystickFileAndShowsIt)
{
    macro.setText("a\r\nb");
    editor.TabStrip1.Select(2);
    go("2");
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 1);
    expectSelected(joystick, 5, 9);
    expectSelected(macro, 0, 0);
}

TEST_F(GotoLine, ALineOfMoreThan32767CharactersIsSelectedWholeAndRecordedIn16Bits)
{
    joystick.setText(std::string(40'000, 'x'));
    go("1");
    expectSelected(joystick, 0, 40'000);
    EXPECT_EQ(editor.joystick.SelectionLength, 40'000 - 65'536);
}

TEST_F(GotoLine, ComesUpWithTheNumberSelected)
{
    int focused = 0;
    int selected = 0;
    const auto focus = window.LineToFind.focusWanted.connect([&] { ++focused; });
    const auto all = window.LineToFind.selectAllWanted.connect([&] { ++selected; });
    window.SSTab1.Select(findTab::find);
    window.SSTab1.Select(findTab::line);
    EXPECT_EQ(focused, 1);
    EXPECT_EQ(selected, 1);
    window.LineToFind.GotFocus();
    EXPECT_EQ(selected, 2);
}

} // namespace
} // namespace tarvex
