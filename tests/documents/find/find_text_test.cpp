
#include "find_fixture.h"

namespace tarvex {
namespace {

struct Find_ : FindFixture {
    Find_()
    {
        joystick.setText("BTN S1 fire\r\nBTN S2 Fire\r\nbtn S3 fired");
        macro.setText("Fire = f");
        t.menus().mnuEditFind.Click();
    }
};

TEST_F(Find_, FindsFirstThenNextAndSelectsEachMatch)
{
    EXPECT_EQ(window.Command1.Caption.get(), "Find first");
    find("BTN");
    expectSelected(joystick, 0, 3);
    EXPECT_EQ(window.Command1.Caption.get(), "Find next");
    EXPECT_EQ(editor.joystick.Caret, 3);
    EXPECT_EQ(editor.joystick.SelectionLength, 3);
    EXPECT_EQ(t.status(3), "Line no: 1");
    window.Command1.Click();
    expectSelected(joystick, 13, 3);
    EXPECT_EQ(t.status(3), "Line no: 2");
    window.Command1.Click();
    expectSelected(joystick, 26, 3);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(Find_, FindNextAfterTheLastMatchShowsTheMessageAndGoesBackToFindFirst)
{
    for (int i = 0; i < 3; ++i) find("BTN");
    window.Command1.Click();
    expectBox("You found 'em all!", "No further instances of \"BTN\" found in untitled.b50", BoxIcon::Information);
    EXPECT_EQ(window.Command1.Caption.get(), "Find first");
    expectSelected(joystick, 29, 0);
    window.Command1.Click();
    expectSelected(joystick, 0, 3);
}

TEST_F(Find_, AMissingTextIsReportedAndTheCaretGoesToTheTop)
{
    joystick.setSelStart(7);
    int focused = 0;
    int selected = 0;
    const auto focus = window.ComboTextFind.focusWanted.connect([&] { ++focused; });
    const auto all = window.ComboTextFind.selectAllWanted.connect([&] { ++selected; });
    find("chaff");
    expectBox("Text not found", "\"chaff\" not found in untitled.b50", BoxIcon::Information);
    EXPECT_EQ(window.Command1.Caption.get(), "Find first");
    expectSelected(joystick, 0, 0);
    EXPECT_EQ(focused, 1);
    EXPECT_EQ(selected, 1);
}

TEST_F(Find_, WithoutATextToFindSaysSo)
{
    find("");
    expectBox("Please enter text to search", "You haven't specified the text to search for", BoxIcon::Exclamation);
    EXPECT_TRUE(window.ComboTextFind.Items.get().empty());
}

TEST_F(Find_, AnEmptyPaneIsReportedByTheCaptionOfItsTab)
{
    joystick.setText("");
    find("x");
    expectBox("No text in joystick file", "untitled.b50 has no text to highlight.", BoxIcon::Exclamation);
    macro.setText("");
    window.OptionMacroF.Click();
    find("x");
    expectBox("No text in macro file", "untitled.m50 has no text to highlight.", BoxIcon::Exclamation);
    EXPECT_EQ(window.ComboTextFind.Items.get(), std::vector<std::string>{"x"}) << "the history has it all the same";
}

TEST_F(Find_, SearchesTheChosenFileAndBringsItToTheFront)
{
    window.OptionMacroF.Click();
    EXPECT_FALSE(window.OptionJoystickF.Value);
    find("fire");
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 2);
    expectSelected(macro, 0, 4);
    EXPECT_EQ(editor.macro.Caret, 4);
    EXPECT_EQ(editor.macro.SelectionLength, 4);
    expectSelected(joystick, 0, 0);
}

TEST_F(Find_, CaseCountsOnlyWithMatchCase)
{
    find("Fire");
    expectSelected(joystick, 7, 4);
    tick(window.MatchCaseF);
    window.Command1.Caption = findFirst;
    find("Fire");
    expectSelected(joystick, 20, 4);
    EXPECT_EQ(window.FindOptions, 4);
}

TEST_F(Find_, WholeWordsOnlyLeavesPartsOfWordsOut)
{
    tick(window.WholeWordF);
    EXPECT_EQ((find("fire"), window.FindOptions), 2);
    window.Command1.Click();
    expectSelected(joystick, 20, 4);
    window.Command1.Click();
    expectBox("You found 'em all!", "No further instances of \"fire\" found in untitled.b50", BoxIcon::Information);
    tick(window.MatchCaseF);
    window.Command1.Click();
    EXPECT_EQ(window.FindOptions, 6);
}

TEST_F(Find_, AnOptionIsRememberedUntilItsOwnCheckClearsIt)
{
    tick(window.MatchCaseF);
    find("BTN");
    EXPECT_EQ(window.MatchOption, 4);
    window.MatchCaseF.Value = false; // not clicked by the user
    window.Command1.Click();
    EXPECT_EQ(window.FindOptions, 4);
    tick(window.MatchCaseF, false);
    window.Command1.Click();
    EXPECT_EQ(window.FindOptions, 0);
}

TEST_F(Find_, TheHistoryTakesEachTextOnce)
{
    find("BTN");
    find("fire");
    find("BTN");
    find("btn");
    EXPECT_EQ(window.ComboTextFind.Items.get(), (std::vector<std::string>{"BTN", "fire", "btn"}));
}

TEST_F(Find_, EditingTheTextBeginsAtTheTopAgain)
{
    find("BTN");
    window.ComboTextFind.Text = "BT";
    EXPECT_EQ(window.Command1.Caption.get(), "Find first");
    window.Command3.Caption = findNext;
    window.ComboTextReplaceFind.Text = "x";
    EXPECT_EQ(window.Command3.Caption.get(), "Find first");
    EXPECT_EQ(window.Command1.Caption.get(), "Find first");
}

TEST_F(Find_, FindNextGoesOnFromWhereTheUserPutTheCaret)
{
    find("BTN");
    joystick.setSelStart(20);
    editor.joystick.Caret = 20;
    window.Command1.Click();
    expectSelected(joystick, 26, 3);
}

TEST_F(Find_, GivesTheKeyboardToItsButton)
{
    int focused = 0;
    const auto focus = window.Command1.focusWanted.connect([&] { ++focused; });
    find("BTN");
    EXPECT_EQ(focused, 1);
}

TEST_F(Find_, LettersOfTheCodePageAreFoundInEitherCaseAndOthersAsQuestionMarks)
{
    joystick.setText("x \xC4\x62 ?");
    find("äb");
    expectSelected(joystick, 2, 2);
    find("漢");
    expectSelected(joystick, 5, 1);
    find("ß");
    expectBox("Text not found", "\"ß\" not found in untitled.b50", BoxIcon::Information);
}

TEST_F(Find_, ALineThatFlashesComesToRestFirst)
{
    joystick.setSelStart(14);
    t.menus().mnuViewHighlightLine.Click();
    find("fire");
    EXPECT_FALSE(editor.TimerBlinkLine.Enabled);
    expectSelected(joystick, 7, 4);
}

TEST_F(Find_, ATextOf10000CharactersIsFoundAndNamedInFull)
{
    const std::string text(10'000, 'x');
    joystick.setText("ab" + text + "c");
    find(text);
    expectSelected(joystick, 2, 10'000);
    find(text + "d");
    expectBox("Text not found", "\"" + text + "d\" not found in untitled.b50", BoxIcon::Information);
}

TEST_F(Find_, BeyondPosition32767MatchesAreFoundAtTheirPlaces)
{
    joystick.setText(std::string(40'000, ' ') + "x" + std::string(40'000, ' ') + "x");
    find("x");
    expectSelected(joystick, 40'000, 1);
    window.Command1.Click();
    expectSelected(joystick, 80'001, 1);
    window.Command1.Click();
    EXPECT_EQ(t.lastBox().title, "You found 'em all!");
}

TEST_F(Find_, AMatchAtPosition65535CountsAsNoneAndThoseBesideItDont)
{
    for (const std::int64_t position : {65'534, 65'535, 65'536}) {
        joystick.setText(std::string(static_cast<std::size_t>(position), ' ') + "x");
        window.Command1.Caption = findFirst;
        t.dialogues.boxes.clear();
        find("x");
        EXPECT_EQ(t.dialogues.boxes.size(), position == 65'535 ? 1U : 0U) << position;
        EXPECT_EQ(joystick.SelLength(), position == 65'535 ? 0 : 1) << position;
    }
}

// ---- the window ----

TEST_F(Find_, TheMenuOpensTheWindowOnItsTabForTheDocumentInFront)
{
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(window.SSTab1.SelectedItem, findTab::find);
    EXPECT_TRUE(window.OptionJoystickF.Value);
    EXPECT_EQ(t.program().shared.FindWindowOpen, 1);
    editor.TabStrip1.Select(2);
    t.menus().mnuEditReplace.Click();
    EXPECT_EQ(window.SSTab1.SelectedItem, findTab::replace);
    EXPECT_TRUE(window.OptionMacroR.Value);
    EXPECT_FALSE(window.OptionJoystickR.Value);
    t.menus().mnuEditGoto.Click();
    EXPECT_EQ(window.SSTab1.SelectedItem, findTab::line);
}

TEST_F(Find_, OpeningItAgainComesToTheFrontAndKeepsTheSearchGoing)
{
    find("BTN");
    int inFront = 0;
    const auto front = window.form.frontWanted.connect([&] { ++inFront; });
    window.form.State = WindowState::Minimised;
    t.menus().mnuEditFind.Click();
    EXPECT_EQ(inFront, 1);
    EXPECT_EQ(window.form.State.get(), WindowState::Normal);
    EXPECT_EQ(window.Command1.Caption.get(), "Find next");
}

TEST_F(Find_, ClosingInEveryWayUnloadsIt)
{
    const std::vector<std::function<void()>> ways{
        [&] { window.form.Close(); },     [&] { window.Command2.Click(); },
        [&] { window.Command4.Click(); }, [&] { window.Command8.Click(); },
        [&] { window.Command9.Click(); }, [&] { t.program().operations.UnloadForm("FindAndReplace"); }};
    for (const auto& way : ways) {
        t.menus().mnuEditFind.Click();
        EXPECT_EQ(t.program().shared.FindWindowOpen, 1);
        way();
        EXPECT_EQ(t.program().shared.FindWindowOpen, 0);
        EXPECT_FALSE(window.form.Visible);
    }
    t.menus().mnuEditFind.Click();
    t.program().operations.UnloadForm("Heading");
    EXPECT_TRUE(window.form.Visible);
}

TEST_F(Find_, GoesWithTheFrameWhileItIsOpen)
{
    t.program().mum.toolWindows.minimiseAll();
    EXPECT_EQ(window.form.State.get(), WindowState::Minimised);
    t.program().mum.toolWindows.restoreAll();
    EXPECT_EQ(window.form.State.get(), WindowState::Normal);
    window.form.Close();
    t.program().mum.toolWindows.minimiseAll();
    EXPECT_EQ(window.form.State.get(), WindowState::Normal);
}

TEST_F(Find_, ANewlyLoadedWindowHasTheOldTextsAndBeginsAtTheTop)
{
    t.menus().mnuEditReplace.Click();
    findToReplace("BTN");
    EXPECT_TRUE(window.Command5.Enabled);
    window.form.Close();
    t.menus().mnuEditReplace.Click();
    EXPECT_EQ(window.ComboTextReplaceFind.Text.get(), "BTN");
    EXPECT_EQ(window.Command3.Caption.get(), "Find first");
    EXPECT_FALSE(window.Command5.Enabled);
    EXPECT_FALSE(window.Command6.Enabled);
}

TEST_F(Find_, ExitTakesTheWindowDown)
{
    editor.joystick.Changed = editor.macro.Changed = changed::saved;
    EXPECT_TRUE(t.program().exit());
    EXPECT_FALSE(window.form.Visible);
}

TEST_F(Find_, TheFindTabTakesTheTextAndTheFileOfTheReplaceTab)
{
    find("BTN");
    window.SSTab1.Select(findTab::replace);
    EXPECT_EQ(window.ComboTextReplaceFind.Text.get(), "BTN");
    window.ComboTextReplaceFind.Text = "fire";
    window.OptionMacroR.Click();
    int focused = 0;
    const auto focus = window.ComboTextFind.focusWanted.connect([&] { ++focused; });
    window.Command1.Caption = findNext;
    window.SSTab1.Select(findTab::find);
    EXPECT_EQ(window.ComboTextFind.Text.get(), "fire");
    EXPECT_TRUE(window.OptionMacroF.Value);
    EXPECT_FALSE(window.OptionJoystickF.Value);
    EXPECT_EQ(window.Command1.Caption.get(), "Find first");
    EXPECT_EQ(focused, 1);
}

TEST_F(Find_, AnEmptyTextIsntTakenToTheOtherTab)
{
    window.ComboTextReplaceFind.Text = "fire";
    window.ComboTextFind.Text = "";
    window.SSTab1.Select(findTab::replace);
    EXPECT_EQ(window.ComboTextReplaceFind.Text.get(), "fire");
    window.ComboTextReplaceFind.Text = "";
    window.ComboTextFind.Text = "BTN";
    window.SSTab1.Select(findTab::find);
    EXPECT_EQ(window.ComboTextFind.Text.get(), "BTN");
}

TEST_F(Find_, TheReplaceTabOffersReplacementsWhileItsSearchIsGoingOn)
{
    window.SSTab1.Select(findTab::replace);
    EXPECT_FALSE(window.Command5.Enabled);
    findToReplace("BTN");
    window.SSTab1.Select(findTab::find);
    window.Command5.Enabled = false;
    window.SSTab1.Select(findTab::replace);
    EXPECT_TRUE(window.Command5.Enabled);
    EXPECT_TRUE(window.Command6.Enabled);
    window.SSTab1.Select(findTab::find);
    window.ComboTextFind.Text = "fire";
    window.SSTab1.Select(findTab::replace);
    EXPECT_EQ(window.Command3.Caption.get(), "Find first") << "another text";
    EXPECT_FALSE(window.Command5.Enabled);
    EXPECT_FALSE(window.Command6.Enabled);
}

TEST_F(Find_, TheChecksOfBothTabsMirrorEachOther)
{
    tick(window.MatchCaseF);
    EXPECT_TRUE(window.MatchCaseR.Value);
    tick(window.WholeWordR);
    EXPECT_TRUE(window.WholeWordF.Value);
    tick(window.MatchCaseR, false);
    EXPECT_FALSE(window.MatchCaseF.Value);
    EXPECT_TRUE(window.WholeWordF.Value);
}

TEST_F(Find_, KeepOnTopIsOneChoiceOnAllTabs)
{
    tick(window.Check7);
    EXPECT_TRUE(window.form.TopMost);
    EXPECT_TRUE(window.Check6.Value);
    EXPECT_TRUE(window.Check8.Value);
    tick(window.Check8, false);
    EXPECT_FALSE(window.form.TopMost);
    EXPECT_FALSE(window.Check6.Value);
    EXPECT_FALSE(window.Check7.Value);
}

TEST_F(Find_, HelpLeadsToTheTopicOfTheTab)
{
    std::vector<int> topics;
    editor.operations.HelpTopic = [&](int topic) { topics.push_back(topic); };
    t.menus().mnuEditFind.Click();
    EXPECT_TRUE(window.Command10.Enabled);
    for (const int tab : {1, 2, 3}) {
        window.SSTab1.SelectedItem = tab;
        window.Command10.Click();
    }
    EXPECT_EQ(topics, (std::vector<int>{3100, 3101, 3102}));
}

} // namespace
} // namespace tarvex
