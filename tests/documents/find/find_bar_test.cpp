#include "documents/find/find_bar.h"

#include "find_fixture.h"

namespace tarvex {
namespace {

using Positions = std::vector<std::int64_t>;

struct FindBarTest : FindFixture {
    FindBar& bar = t.program().findBar;

    FindBarTest()
    {
        joystick.setText("BTN S1 fire\r\nBTN S2 Fire\r\nBTN S3 misfire");
        macro.setText("fire = a");
    }
    void open() { t.menus().mnuEditFindBar.Click(); }
    void write(const std::string& text) { bar.Text.Text = text; }
    std::string count() { return bar.Count.Caption; }
};

TEST_F(FindBarTest, FindsAndCountsWhileTheTextIsWritten)
{
    open();
    EXPECT_TRUE(bar.Visible);
    EXPECT_EQ(count(), "");
    write("f");
    expectSelected(joystick, 7, 1);
    write("fire");
    expectSelected(joystick, 7, 4);
    EXPECT_EQ(count(), "1 of 3");
    EXPECT_EQ(t.status(3), "Line no: 1");
    write("fires");
    EXPECT_EQ(count(), "Not found");
    expectSelected(joystick, 7, 4);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(FindBarTest, WhileItIsClosedItsTextAndOptionsSeekNothing)
{
    joystick.setSelStart(3);
    write("fire");
    tick(bar.MatchCase);
    tick(bar.WholeWord);
    EXPECT_TRUE(editor.joystick.Matches.positions().empty());
    expectSelected(joystick, 3, 0);
    joystick.setSelStart(4);
    EXPECT_EQ(count(), "");
}

TEST_F(FindBarTest, TakesTheKeyboardAndGivesItBackToThePane)
{
    std::string order;
    const auto text = bar.Text.focusWanted.connect([&] { order += "text "; });
    const auto all = bar.Text.selectAllWanted.connect([&] { order += "all "; });
    const auto pane = joystick.focusWanted.connect([&] { order += "pane"; });
    open();
    bar.Close.Click();
    EXPECT_EQ(order, "text all pane");
}

TEST_F(FindBarTest, OpenedAgainItSeeksWhatItSoughtBefore)
{
    open();
    write("fire");
    bar.Close.Click();
    joystick.setSelStart(0);
    open();
    EXPECT_EQ(count(), "3 matches");
    EXPECT_EQ(editor.joystick.Matches.positions(), (Positions{7, 20, 36}));
    bar.Close.Click();
    write("");
    open();
    EXPECT_EQ(count(), "");
}

TEST_F(FindBarTest, TheMatchIsRecordedAndItsPlaceIsShown)
{
    std::vector<int> jumps;
    const auto listening = editor.Jumped.connect([&](const Side& side) { jumps.push_back(side.tab); });
    t.menus().mnuViewHighlightLine.Click();
    open();
    write("misfire");
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    expectSelected(joystick, 33, 7);
    EXPECT_EQ(editor.joystick.Caret, 40);
    EXPECT_EQ(editor.joystick.SelectionLength, 7);
    EXPECT_EQ(t.status(3), "Line no: 3");
    EXPECT_EQ(jumps, std::vector<int>{1});
}

TEST_F(FindBarTest, AShorterTextIsSoughtWhereTheUserWas)
{
    open();
    write("fire");
    bar.Next.Click();
    write("fir");
    expectSelected(joystick, 20, 3);
    bar.Next.Click();
    bar.Previous.Click();
    write("fi");
    expectSelected(joystick, 20, 2);
    joystick.setSelStart(30);
    bar.Text.GotFocus();
    write("f");
    expectSelected(joystick, 36, 1);
    macro.setText("fire fire");
    macro.setSelStart(2);
    editor.TabStrip1.Select(2);
    write("fi");
    expectSelected(macro, 5, 2);
}

TEST_F(FindBarTest, TheNextMatchMayBeginAtTheCaret)
{
    open();
    write("fire");
    joystick.setSelStart(20);
    bar.Next.Click();
    expectSelected(joystick, 20, 4);
}

TEST_F(FindBarTest, WhileItIsOpenTheFindWindowLeavesItsMarks)
{
    t.menus().mnuEditFind.Click();
    open();
    write("fire");
    window.ComboTextFind.Text = "BTN";
    EXPECT_EQ(editor.joystick.Matches.positions(), (Positions{7, 20, 36}));
}

TEST_F(FindBarTest, BeginsAtTheCaretAndGoesRoundAtTheEnd)
{
    joystick.setSelStart(20);
    open();
    write("fire");
    EXPECT_EQ(count(), "2 of 3");
    bar.Next.Click();
    EXPECT_EQ(count(), "3 of 3");
    bar.Next.Click();
    EXPECT_EQ(count(), "1 of 3");
    bar.Previous.Click();
    EXPECT_EQ(count(), "3 of 3");
    bar.Previous.Click();
    expectSelected(joystick, 20, 4);
}

TEST_F(FindBarTest, MarksTheMatchesOfBothFilesUntilItCloses)
{
    open();
    write("fire");
    EXPECT_EQ(editor.joystick.Matches.positions(), (Positions{7, 20, 36}));
    EXPECT_EQ(editor.macro.Matches.positions(), Positions{0});
    bar.Close.Click();
    EXPECT_FALSE(bar.Visible);
    EXPECT_TRUE(editor.joystick.Matches.positions().empty());
    EXPECT_TRUE(editor.macro.Matches.positions().empty());
    expectSelected(joystick, 7, 4);
}

TEST_F(FindBarTest, SeeksInTheFileInFront)
{
    open();
    write("fire");
    editor.TabStrip1.Select(2);
    EXPECT_EQ(count(), "1 match");
    bar.Next.Click();
    EXPECT_EQ(count(), "1 of 1");
    expectSelected(macro, 0, 4);
}

TEST_F(FindBarTest, OptionsNarrowTheSearch)
{
    open();
    write("fire");
    tick(bar.MatchCase);
    EXPECT_EQ(count(), "1 of 2");
    tick(bar.WholeWord);
    EXPECT_EQ(count(), "1 of 1");
    tick(bar.MatchCase, false);
    EXPECT_EQ(count(), "1 of 2");
}

TEST_F(FindBarTest, TakesOverASingleSelectedWord)
{
    joystick.setSelStart(4);
    joystick.setSelLength(2);
    open();
    EXPECT_EQ(bar.Text.Text.get(), "S1");
    EXPECT_EQ(count(), "1 of 1");
    joystick.setSelStart(0);
    joystick.setSelLength(6);
    open();
    EXPECT_EQ(bar.Text.Text.get(), "S1");
}

TEST_F(FindBarTest, TheCountFollowsEditsAndTheCaret)
{
    open();
    write("fire");
    joystick.setSelStart(0);
    EXPECT_EQ(count(), "3 matches");
    joystick.userEdit(0, 0, "fire ");
    EXPECT_EQ(count(), "4 matches");
}

TEST_F(FindBarTest, CharactersThatNoPaneHoldsAreNotFound)
{
    joystick.setText("a ? b");
    open();
    write("\xE2\x98\x83"); // a snowman, which would become "?"
    EXPECT_EQ(count(), "Not found");
}

TEST_F(FindBarTest, ATextOfTenThousandCharactersIsSought)
{
    open();
    write(std::string(10'000, 'x'));
    EXPECT_EQ(count(), "Not found");
    joystick.setText(std::string(10'000, 'x'));
    EXPECT_EQ(count(), "1 match");
    bar.Next.Click();
    EXPECT_EQ(count(), "1 of 1");
}

TEST_F(FindBarTest, AnEmptyDocumentHasNothingToGoTo)
{
    joystick.setText("");
    open();
    write("x");
    bar.Next.Click();
    bar.Previous.Click();
    EXPECT_EQ(count(), "Not found");
    expectSelected(joystick, 0, 0);
}

TEST_F(FindBarTest, TheFindWindowGoesOnBehindItsMatch)
{
    open();
    write("fire");
    window.Command1.Caption = findNext;
    window.ComboTextFind.Text = "fire";
    window.Command1.Caption = findNext;
    window.Command1.Click();
    expectSelected(joystick, 20, 4);
}

// ---- the find window ------------------------------------------------------------------------------------------------

TEST_F(FindBarTest, TheFindWindowTakesOverASingleSelectedWordAndMarksItsMatches)
{
    joystick.setSelStart(7);
    joystick.setSelLength(4);
    t.menus().mnuEditFind.Click();
    EXPECT_EQ(window.ComboTextFind.Text.get(), "fire");
    EXPECT_EQ(editor.joystick.Matches.positions(), (Positions{7, 20, 36}));
    window.form.unload();
    EXPECT_TRUE(editor.joystick.Matches.positions().empty());
}

TEST_F(FindBarTest, TheFindWindowLeavesASelectionOfSeveralWords)
{
    window.ComboTextFind.Text = "old";
    joystick.setSelStart(0);
    joystick.setSelLength(6);
    t.menus().mnuEditFind.Click();
    EXPECT_EQ(window.ComboTextFind.Text.get(), "old");
    joystick.setSelStart(0);
    joystick.setSelLength(13);
    t.menus().mnuEditReplace.Click();
    EXPECT_EQ(window.ComboTextReplaceFind.Text.get(), "old");
}

TEST_F(FindBarTest, TheFindWindowStillSeeksTheNextOneWhenItIsAskedForAgain)
{
    t.menus().mnuEditFind.Click();
    find("FIRE");
    expectSelected(joystick, 7, 4);
    t.menus().mnuEditFind.Click();
    EXPECT_EQ(window.ComboTextFind.Text.get(), "FIRE");
    window.Command1.Click();
    expectSelected(joystick, 20, 4);
}

TEST_F(FindBarTest, TheFindWindowsOptionsNarrowTheMarks)
{
    t.menus().mnuEditFind.Click();
    window.ComboTextFind.Text = "fire";
    tick(window.MatchCaseF);
    EXPECT_EQ(editor.joystick.Matches.positions(), (Positions{7, 36}));
    tick(window.WholeWordF);
    EXPECT_EQ(editor.joystick.Matches.positions(), Positions{7});
    window.SSTab1.Select(findTab::line);
    EXPECT_TRUE(editor.joystick.Matches.positions().empty());
}

TEST_F(FindBarTest, ClosedOverAnOpenFindWindowItGivesTheMarksBack)
{
    t.menus().mnuEditFind.Click();
    window.ComboTextFind.Text = "BTN";
    open();
    write("fire");
    EXPECT_EQ(editor.joystick.Matches.positions(), (Positions{7, 20, 36}));
    bar.Close.Click();
    EXPECT_EQ(editor.joystick.Matches.positions(), (Positions{0, 13, 26}));
}

} // namespace
} // namespace tarvex
