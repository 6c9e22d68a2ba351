// The controls of the find window: what they show and which of them has the keyboard.

#include "find_fixture.h"

namespace tarvex {
namespace {

struct FindWindow : FindFixture {
    std::string focused;
    std::vector<Connection> listening;

    FindWindow()
    {
        joystick.setText("BTN S1 fire\r\nBTN S2 fire");
        note(window.ComboTextFind.focusWanted, "find ");
        note(window.ComboTextReplaceFind.focusWanted, "replace ");
        note(window.LineToFind.focusWanted, "line ");
        note(window.ComboTextFind.selectAllWanted, "(find) ");
        note(window.ComboTextReplaceFind.selectAllWanted, "(replace) ");
        note(window.LineToFind.selectAllWanted, "(line) ");
    }
    void note(Signal<>& signal, const char* what)
    {
        listening.push_back(signal.connect([this, what] { focused += what; }));
    }
    std::string takeFocused() { return std::exchange(focused, {}); }
};

TEST_F(FindWindow, GivesTheKeyboardToTheTextOfItsTab)
{
    t.menus().mnuEditFind.Click();
    EXPECT_EQ(takeFocused(), "find (find) (replace) ");
    t.menus().mnuEditFind.Click();
    EXPECT_EQ(takeFocused(), "find (find) (replace) ");
    t.menus().mnuEditReplace.Click();
    EXPECT_EQ(takeFocused(), "replace (find) (replace) ");
    t.menus().mnuEditGoto.Click();
    EXPECT_EQ(takeFocused(), "line (line) (find) (replace) ");
    window.SSTab1.Select(findTab::find);
    EXPECT_EQ(takeFocused(), "find ");
}

TEST_F(FindWindow, SearchesBeginAtTheTopAtFirstAndWheneverItIsOpenedOrItsTabIsChosen)
{
    EXPECT_EQ(window.Command1.Caption.get(), findFirst);
    EXPECT_EQ(window.Command3.Caption.get(), findFirst);
    t.menus().mnuEditFind.Click();
    find("fire");
    ASSERT_EQ(window.Command1.Caption.get(), findNext);
    window.SSTab1.Select(findTab::replace);
    EXPECT_EQ(window.Command1.Caption.get(), findNext);
    window.SSTab1.Select(findTab::find);
    EXPECT_EQ(window.Command1.Caption.get(), findFirst);
    find("fire");
    ASSERT_EQ(window.Command1.Caption.get(), findNext);
    window.form.unload();
    t.menus().mnuEditFind.Click();
    EXPECT_EQ(window.Command1.Caption.get(), findFirst);
}

TEST_F(FindWindow, OpenedAgainItMarksWhatItSoughtBefore)
{
    t.menus().mnuEditFind.Click();
    window.ComboTextFind.Text = "BTN";
    window.form.unload();
    ASSERT_TRUE(editor.joystick.Matches.positions().empty());
    t.menus().mnuEditFind.Click();
    EXPECT_EQ(editor.joystick.Matches.positions(), (std::vector<std::int64_t>{0, 13}));
}

TEST_F(FindWindow, TheChosenFileIsChosenOnTheOtherTab)
{
    t.menus().mnuEditFind.Click();
    window.OptionMacroF.Click();
    EXPECT_TRUE(window.OptionMacroF.Value);
    EXPECT_FALSE(window.OptionJoystickF.Value);
    window.SSTab1.Select(findTab::replace);
    EXPECT_TRUE(window.OptionMacroR.Value);
    EXPECT_FALSE(window.OptionJoystickR.Value);
    window.OptionJoystickR.Click();
    EXPECT_TRUE(window.OptionJoystickR.Value);
    EXPECT_FALSE(window.OptionMacroR.Value);
    window.SSTab1.Select(findTab::find);
    EXPECT_TRUE(window.OptionJoystickF.Value);
    window.OptionMacroF.Click();
    window.OptionJoystickF.Click();
    EXPECT_TRUE(window.OptionJoystickF.Value);
    EXPECT_FALSE(window.OptionMacroF.Value);
}

TEST_F(FindWindow, HelpIsGreyedWithoutAHandbook)
{
    editor.operations.HelpTopic = nullptr;
    t.menus().mnuEditFind.Click();
    EXPECT_FALSE(window.Command10.Enabled);
}

TEST_F(FindWindow, AMatchOfOneCharacterIsTheWholeTextAndIsShown)
{
    int jumps = 0;
    listening.push_back(editor.Jumped.connect([&](const Side&) { ++jumps; }));
    joystick.setText("x");
    find("x");
    expectSelected(joystick, 0, 1);
    EXPECT_EQ(jumps, 1);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(FindWindow, ASelectedWordOf100CharactersIsSoughtAndALongerOneIsnt)
{
    for (const std::size_t length : {100U, 101U}) {
        joystick.setText(std::string(length, 'x'));
        joystick.setSelStart(0);
        joystick.setSelLength(static_cast<std::int64_t>(length));
        window.ComboTextFind.Text = "old";
        t.menus().mnuEditFind.Click();
        EXPECT_EQ(window.ComboTextFind.Text.get(), length == 100 ? std::string(100, 'x') : "old");
    }
}

} // namespace
} // namespace tarvex
