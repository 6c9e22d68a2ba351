#include "language/commands/identify_macros.h"
#include "language/commands/macro_lists.h"

#include "language/commands/button_definition.h"
#include "language/commands/find_macro.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct IdentifyTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    FrameMacros& frame = editor.FrameMacros;

    IdentifyTest() { t.typeMacro("M = m"); }
    void list(const std::vector<std::string>& names, std::size_t index = 0)
    {
        std::vector<CheckListBox::Item> items;
        for (const std::string& name : names) items.push_back({name, false});
        while (frame.List1.size() <= index) frame.List1.emplace_back();
        frame.List1[index].Items = items;
    }
    std::vector<std::string> ticked(std::size_t index = 0)
    {
        std::vector<std::string> names;
        for (const auto& item : frame.List1[index].Items.get())
            if (item.Selected) names.push_back(item.Text);
        return names;
    }
    /// The macros of the list that are used by a text.
    std::vector<std::string> used(const std::string& text, const std::vector<std::string>& names)
    {
        list(names);
        editor.JoystickText.setText("Rem e\r\n" + text);
        IdentifyMacrosUsed(editor);
        return ticked();
    }
};

TEST_F(IdentifyTest, ANameBeforeALineEndIsUsed) { EXPECT_THAT(used("BTN T1 Fire\r\n", {"Fire"}), ElementsAre("Fire")); }

TEST_F(IdentifyTest, ALongerWordIsAnother) { EXPECT_THAT(used("BTN T1 Fire2\r\nXFire \r\n", {"Fire"}), IsEmpty()); }

TEST_F(IdentifyTest, TwoNamesOfOneStatementAreBothUsed)
{
    EXPECT_THAT(used("BTN T1 /P Fire /R Stop\r\n", {"Fire", "Stop"}), ElementsAre("Fire", "Stop"));
}

TEST_F(IdentifyTest, ANameAtTheVeryEndOfTheTextDoesNotCount)
{
    EXPECT_THAT(used("BTN T1 /P Fire /R Stop", {"Fire", "Stop"}), ElementsAre("Fire"));
}

TEST_F(IdentifyTest, ANameBeforeATabABracketOrACommaDoesNotCount)
{
    EXPECT_THAT(used("Fire\t\r\nFire(\r\nFire,\r\n", {"Fire"}), IsEmpty());
}

TEST_F(IdentifyTest, ALaterUseCountsThoughTheFirstDoesNot)
{
    EXPECT_THAT(used("Fire,Fire\tFire2 Fire \r\n", {"Fire"}), ElementsAre("Fire"));
}

TEST_F(IdentifyTest, ANameInARemLineCountsAsUsed)
{
    EXPECT_THAT(used("Rem we Fire here\r\n", {"Fire"}), ElementsAre("Fire"));
}

TEST_F(IdentifyTest, CaseDoesNotCount) { EXPECT_THAT(used("btn t1 fIRe\r\n", {"FirE"}), ElementsAre("FirE")); }

TEST_F(IdentifyTest, ANameWithAnInnerBlankIsSoughtAsItStands)
{
    EXPECT_THAT(used("BTN T1 Open Fire\r\n", {"Open Fire", "Open  Fire"}), ElementsAre("Open Fire"));
}

TEST_F(IdentifyTest, ANameAtTheVeryStartOfTheTextIsUsed)
{
    list({"Fire"});
    editor.JoystickText.setText("Fire \r\n");
    IdentifyMacrosUsed(editor);
    EXPECT_THAT(ticked(), ElementsAre("Fire"));
}

TEST_F(IdentifyTest, NamesOfSignsAndOddBytesAreSoughtLikeOthers)
{
    EXPECT_THAT(used("BTN T1 Zoom- \r\nM\xE9t\xE9o \r\n", {"Zoom-", "Zoom", "M\xC3\x89T\xC3\x89O", "\xC2\x81"}),
                ElementsAre("Zoom-", "M\xC3\x89T\xC3\x89O"));
}

TEST_F(IdentifyTest, AnEmptyNameIsNeverUsed) { EXPECT_THAT(used("a  b \r\n", {""}), IsEmpty()); }

TEST_F(IdentifyTest, EveryListIsTickedAndOldTicksGo)
{
    list({"A", "B"});
    list({"B"}, 1);
    auto items = frame.List1[0].Items.get();
    items[0].Selected = true;
    frame.List1[0].Items = items;
    editor.JoystickText.setText("e B \r\n");
    IdentifyMacrosUsed(editor);
    EXPECT_THAT(ticked(0), ElementsAre("B"));
    EXPECT_THAT(ticked(1), ElementsAre("B"));
}

TEST_F(IdentifyTest, TheLastNameThatWasLookedAtIsTheSelectedMacro)
{
    list({"A", "B"});
    list({"C", "D"}, 1);
    list({}, 2);
    editor.macros.SelectedMacro = "before";
    editor.JoystickText.setText("e A \r\n");
    IdentifyMacrosUsed(editor);
    EXPECT_EQ(editor.macros.SelectedMacro, "D");
}

TEST_F(IdentifyTest, TheHeadingAllIsShownAgainAndTheStatusSaysSo)
{
    frame.Combo1.Items = std::vector<std::string>{"All", "Guns"};
    frame.Combo1.Text = "Guns";
    list({"A"});
    list({"A"}, 1);
    bringToFront(frame, 1);
    editor.macros.MacroListDirty = 0;
    t.typeJoystick("e A \r\n");
    std::vector<std::string> lines;
    bool waited = false;
    const auto listening = t.program().mum.StatusBar.Panels(1).Text.changed.connect([&] {
        lines.push_back(t.status());
        waited = waited || t.desktop.hourglass;
    });
    t.menus().mnuViewIdentify.Click();
    EXPECT_THAT(lines,
                ElementsAre("Analysing the macros you've already assigned in the untitled.b50. Please wait ...",
                            "Finished analysing the macros assigned in your joystick file...phew!...fancy a beer?"));
    EXPECT_TRUE(waited);
    EXPECT_FALSE(t.desktop.hourglass);
    EXPECT_EQ(frame.Combo1.Text.get(), "All");
    EXPECT_TRUE(frame.List1[0].Visible);
    EXPECT_FALSE(frame.List1[1].Visible);
    EXPECT_EQ(editor.macros.MacroListDirty, 1);
    EXPECT_EQ(editor.TempRichTextBox.Text(), "");
}

TEST_F(IdentifyTest, TheUsersPaneKeepsItsSelection)
{
    list({"A"});
    t.typeJoystick("e A \r\n");
    editor.JoystickText.setSelStart(1);
    editor.JoystickText.setSelLength(2);
    IdentifyMacrosUsed(editor);
    EXPECT_EQ(editor.JoystickText.SelStart(), 1);
    EXPECT_EQ(editor.JoystickText.SelLength(), 2);
}

TEST_F(IdentifyTest, AListIsNotifiedOfItsTicksOnce)
{
    list({"A", "B", "C"});
    t.typeJoystick("e A B C \r\n");
    int changes = 0;
    const auto listening = frame.List1[0].Items.changed.connect([&] { ++changes; });
    IdentifyMacrosUsed(editor);
    EXPECT_THAT(ticked(), ElementsAre("A", "B", "C"));
    EXPECT_EQ(changes, 1);
}

TEST_F(IdentifyTest, ClearMacroTicksClearsEveryList)
{
    list({"A"});
    list({"A"}, 1);
    t.typeJoystick("e A \r\n");
    IdentifyMacrosUsed(editor);
    ASSERT_THAT(ticked(1), ElementsAre("A"));
    ClearMacroTicks(editor);
    EXPECT_THAT(ticked(0), IsEmpty());
    EXPECT_THAT(ticked(1), IsEmpty());
}

TEST_F(IdentifyTest, AJoystickFileWithoutASmallEGetsTheJokeAndTheTicksStay)
{
    list({"Fire"});
    t.typeJoystick("e Fire \r\n");
    IdentifyMacrosUsed(editor);
    editor.JoystickText.setText("BTN T1 FIRE \r\n");
    IdentifyMacrosUsed(editor);
    EXPECT_EQ(t.lastBox().title, "You're kidding me...right?!");
    EXPECT_EQ(t.lastBox().text,
              "Oh come off it ... what's there to analyse? You think I'm some kind of slave that you can just push "
              "around ... well no .... computers have feelings you know ... you keep turning me on, and then turning "
              "me off ... how would you like it? !!! Next time I'm going to analyse you instead of these damn files "
              "...");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
    EXPECT_THAT(ticked(), ElementsAre("Fire"));
}

TEST_F(IdentifyTest, AnEmptyMacroFileGetsTheJokeToo)
{
    list({"Fire"});
    editor.MacroText.setText("");
    t.typeJoystick("e Fire \r\n");
    IdentifyMacrosUsed(editor);
    EXPECT_EQ(t.lastBox().title, "You're kidding me...right?!");
    EXPECT_THAT(ticked(), IsEmpty());
}

TEST_F(IdentifyTest, TicksAreNotSavedButMadeAgainOnRequest)
{
    editor.macro.Changed = changed::saved;
    t.files.addFile("c:\\a\\x.b50", "BTN S1 Fire\r\n");
    t.files.addFile("c:\\a\\x.m50", "Fire = f\r\n");
    t.openBoth("c:\\a\\x.b50");
    EXPECT_THAT(ticked(), ElementsAre("Fire"));
    t.settings().CheckIdentifyOK = 0;
    t.openBoth("c:\\a\\x.b50");
    EXPECT_THAT(ticked(), IsEmpty());
    t.menus().mnuViewIdentify.Click();
    EXPECT_THAT(ticked(), ElementsAre("Fire"));
}

// ---- FindMacroInJF --------------------------------------------------------------------------------------------------

struct FindMacroTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Pane& pane = editor.JoystickText;

    void find(const std::string& text, const std::string& name)
    {
        pane.setText(text);
        pane.setSelStart(1);
        editor.macros.SelectedMacro = name;
        FindMacroInJF(editor);
    }
};

TEST_F(FindMacroTest, SelectsTheNameWithoutTheBlankBehindIt)
{
    editor.TabStrip1.Select(2);
    find("BTN S1 fire2 fire /R", "Fire");
    EXPECT_EQ(pane.SelStart(), 13);
    EXPECT_EQ(pane.SelText(), "fire");
    EXPECT_EQ(editor.joystick.Caret, 13);
    EXPECT_EQ(editor.joystick.SelectionLength, 4);
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 1);
}

TEST_F(FindMacroTest, SelectsTheCarriageReturnToo)
{
    find("BTN S1 Fire\r\n", "Fire");
    EXPECT_EQ(pane.SelText(), "Fire\r");
    EXPECT_EQ(editor.joystick.SelectionLength, 5);
}

TEST_F(FindMacroTest, AUseBeforeABlankComesBeforeAnEarlierOneBeforeALineEnd)
{
    find("Fire\r\nFire x", "Fire");
    EXPECT_EQ(pane.SelStart(), 6);
}

TEST_F(FindMacroTest, WithoutAUseNothingMoves)
{
    editor.joystick.Caret = 3;
    find("Fire, Fire2 Fire", "Fire");
    EXPECT_EQ(pane.SelStart(), 1);
    EXPECT_EQ(pane.SelLength(), 0);
    EXPECT_EQ(editor.joystick.Caret, 3);
}

TEST_F(FindMacroTest, TheUseStaysSelectedThoughALineWasFlashing)
{
    pane.setText("BTN S1 x\r\nBTN S2 Fire x");
    t.menus().mnuViewHighlightLine.Click();
    editor.macros.SelectedMacro = "Fire";
    FindMacroInJF(editor);
    while (editor.TimerBlinkLine.Enabled) editor.TimerBlinkLine.Tick();
    EXPECT_EQ(pane.SelText(), "Fire");
}

// ---- ExtractButtonDefinition ----------------------------------------------------------------------------------------

struct StatementTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Pane& pane = editor.JoystickText;

    std::string statement(const std::string& text, const std::string& head)
    {
        pane.setText(text);
        return ExtractButtonDefinition(editor, head) ? pane.SelText() : "(none)";
    }
};

TEST_F(StatementTest, EndsBeforeTheNextStatementWithoutTheLineEnds)
{
    EXPECT_EQ(statement("BTN S1 /P a\r\n   /R b\r\n\r\nBTN S2 c", "BTN S1"), "BTN S1 /P a\r\n   /R b");
    EXPECT_EQ(editor.joystick.SelectionLength, 20);
    EXPECT_EQ(editor.joystick.Caret, 0);
}

TEST_F(StatementTest, EachStatementWordEndsIt)
{
    for (const char* word : {"btn S2", "RNG 1", "ant 1", "mdef x", "jsx 1", "jsy 1", "portb", "use TQS", "rate 20",
                             "swaptg x", "thr 1", "rddr 1"})
        EXPECT_EQ(statement("BTN S1 x\r\n" + std::string(word), "BTN S1"), "BTN S1 x") << word;
}

TEST_F(StatementTest, OtherWordsDoNotEndIt)
{
    for (const char* word : {"RKR UP a", "DEF X1 b", "NOT S1", "rng 1", "XBTN", "Rem c"}) {
        const std::string text = "BTN S1 x\r\n" + std::string(word);
        EXPECT_EQ(statement(text, "BTN S1"), text);
    }
}

TEST_F(StatementTest, TheLastStatementGoesToTheEndAndKeepsItsBlanks)
{
    EXPECT_EQ(statement("Rem BTN\r\nBTN S1 x  \r\n\r\n", "BTN S1"), "BTN S1 x  ");
}

TEST_F(StatementTest, AHeadWithNothingBehindItIsTheWholeStatement)
{
    EXPECT_EQ(statement("BTN S1\r\nBTN S2 c", "BTN S1"), "BTN S1");
}

TEST_F(StatementTest, WithoutTheHeadTheCaretGoesBack)
{
    pane.setText("BTN S10 x");
    editor.joystick.Caret = 5;
    EXPECT_FALSE(ExtractButtonDefinition(editor, "BTN S1"));
    EXPECT_EQ(editor.joystick.Caret, 5);
    EXPECT_EQ(pane.SelStart(), 5);
}

TEST_F(StatementTest, AnEmptyPaneHasNone)
{
    editor.joystick.Caret = 5;
    EXPECT_EQ(statement("", "BTN S1"), "(none)");
    EXPECT_EQ(editor.joystick.Caret, 5);
}

TEST_F(StatementTest, PortBTakesTheFourCharactersBeforeItAndAsMuchLessAtItsEnd)
{
    EXPECT_EQ(statement("BTN PortB S1 x\r\nUSE TQS", "PortB S1"), "BTN PortB ");
}

TEST_F(StatementTest, PortBAtTheVeryStartIsReportedAndSelectedFromThere)
{
    t.program().shared.errors.ErrorProcedure.clear();
    EXPECT_EQ(statement("PortB S1 x\r\nUSE TQS", "PortB"), "PortB S1 x");
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_ExtractButtonDefinition");
}

} // namespace
} // namespace tarvex
