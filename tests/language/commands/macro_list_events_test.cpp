#include "language/commands/macro_list_events.h"

#include "documents/pair/editor_layout.h"
#include "platform/input.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* prompt = "Select a macro heading to view the macros under it";

struct ListEventsTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    FrameMacros& frame = editor.FrameMacros;
    Pane& joystick = editor.JoystickText;

    ListEventsTest()
    {
        t.files.addFile("c:\\a\\x.b50", "e Stop Fire\r\n");
        t.files.addFile("c:\\a\\x.m50", "Fire = f\r\nRem ----\r\nRem BRAKES\r\nRem ----\r\nStop = s\r\nGo  = g\r\n");
        t.settings().CheckIdentifyOK = 0;
        t.openBoth("c:\\a\\x.b50");
        editor.status("");
    }
    void choose(const std::string& text)
    {
        frame.Combo1.Text = text;
        frame.Combo1.Click();
    }
    void pick(std::size_t list, int item) { frame.List1[list].ListIndex = item; }
    void doubleClickFire()
    {
        pick(0, 0);
        List1_DblClick(editor, 0);
    }
    void caretAt(const std::string& text, std::int64_t caret)
    {
        joystick.setText(text);
        joystick.setSelStart(caret);
        editor.joystick.Caret = caret;
    }
};

// ---- Combo1 ---------------------------------------------------------------------------------------------------------

TEST_F(ListEventsTest, AHeadingShowsItsListAndPicksTheFirstMacro)
{
    choose("bRAKES");
    EXPECT_FALSE(frame.List1[0].Visible);
    EXPECT_TRUE(frame.List1[1].Visible);
    EXPECT_EQ(frame.List1[1].ListIndex, 0);
    EXPECT_EQ(editor.macros.SelectedMacro, "Stop");
    EXPECT_EQ(t.status(), "Stop = s");
}

TEST_F(ListEventsTest, OfTwoHeadingsThatDifferOnlyInCaseTheFirstIsShown)
{
    t.files.addFile("c:\\a\\y.b50", "e");
    t.files.addFile("c:\\a\\y.m50",
                    "Rem --\r\nRem GUNS\r\nRem --\r\nA = a\r\nRem --\r\nRem guns\r\nRem --\r\nB = b\r\n");
    t.openBoth("c:\\a\\y.b50");
    choose("Guns");
    EXPECT_TRUE(frame.List1[1].Visible);
    EXPECT_FALSE(frame.List1[2].Visible);
    EXPECT_EQ(editor.macros.SelectedMacro, "A");
}

TEST_F(ListEventsTest, AHeadingWithoutMacrosShowsAnEmptyListAndThePrompt)
{
    t.files.addFile("c:\\a\\y.b50", "e");
    t.files.addFile("c:\\a\\y.m50", "A = a\r\nRem --\r\nRem GUNS\r\nRem --\r\nRem none\r\n");
    t.openBoth("c:\\a\\y.b50");
    editor.macros.SelectedMacro = "A";
    choose("Guns");
    EXPECT_TRUE(frame.List1[1].Visible);
    EXPECT_EQ(editor.macros.SelectedMacro, "A");
    EXPECT_EQ(t.status(), prompt);
}

TEST_F(ListEventsTest, TheComboPromptsAndEndsTheSizingPointer)
{
    frame.MousePointer = MousePointer::SizeWestEast;
    Combo1_GotFocus(editor);
    EXPECT_EQ(t.status(), prompt);
    EXPECT_EQ(frame.MousePointer.get(), MousePointer::Default);
    editor.status("");
    frame.MousePointer = MousePointer::SizeWestEast;
    Combo1_MouseMove(editor);
    EXPECT_EQ(t.status(), prompt);
    EXPECT_EQ(frame.MousePointer.get(), MousePointer::Default);
}

// ---- ShowMacroKeys --------------------------------------------------------------------------------------------------

TEST_F(ListEventsTest, AKeyInTheListShowsTheMacrosDefinition)
{
    pick(0, 0);
    List1_KeyDown(editor, 0, shiftKey::none);
    EXPECT_EQ(t.status(), "Fire = f");
    pick(0, 1);
    List1_KeyUp(editor, 0, shiftKey::none);
    EXPECT_EQ(t.status(), "Stop = s");
    EXPECT_EQ(editor.MacroText.SelLength(), 0) << "the macro pane isn't in sight";
}

TEST_F(ListEventsTest, TheDefinitionIsSelectedWhereTheMacroPaneIsSeen)
{
    editor.TabStrip1.Select(2);
    pick(0, 1);
    List1_KeyDown(editor, 0, shiftKey::none);
    EXPECT_EQ(editor.MacroText.SelText(), "Stop = s");
    EXPECT_EQ(editor.macro.SelectionLength, 8);
    EXPECT_EQ(editor.macro.Caret, editor.MacroText.SelStart());

    editor.TabStrip1.Select(1);
    editor.MacroText.setSelStart(0);
    t.menus().mnuViewTileVertically.Click();
    List1_KeyDown(editor, 0, shiftKey::none);
    EXPECT_EQ(editor.MacroText.SelText(), "Stop = s");
}

TEST_F(ListEventsTest, TheDefinitionStaysSelectedThoughALineWasFlashing)
{
    editor.TabStrip1.Select(2);
    t.menus().mnuViewHighlightLine.Click();
    pick(0, 1);
    List1_KeyDown(editor, 0, shiftKey::none);
    while (editor.TimerBlinkLine.Enabled) editor.TimerBlinkLine.Tick();
    EXPECT_EQ(editor.MacroText.SelText(), "Stop = s");
}

TEST_F(ListEventsTest, ANameFollowedByTwoBlanksIsNotFound)
{
    pick(0, 2);
    List1_KeyDown(editor, 0, shiftKey::none);
    EXPECT_EQ(editor.macros.SelectedMacro, "Go");
    EXPECT_EQ(t.status(), "");
}

TEST_F(ListEventsTest, AMacroDefinedTwiceShowsItsFirstDefinition)
{
    editor.macros.MacroFileLines = {"stop = first", "Stop = second"};
    pick(0, 1);
    List1_KeyDown(editor, 0, shiftKey::none);
    EXPECT_EQ(t.status(), "stop = first");
}

// ---- keys and mouse -------------------------------------------------------------------------------------------------

TEST_F(ListEventsTest, ShiftAloneAlsoShowsWhereTheMacroIsUsed)
{
    pick(0, 1);
    List1_KeyDown(editor, 0, shiftKey::shift | shiftKey::ctrl);
    EXPECT_EQ(joystick.SelLength(), 0);
    List1_KeyDown(editor, 0, shiftKey::shift);
    EXPECT_EQ(joystick.SelText(), "Stop");
}

TEST_F(ListEventsTest, AClickShowsTheMacroAndShiftClickFindsItWithTheLeftButtonOnly)
{
    pick(0, 1);
    List1_MouseDown(editor, 0, mouseButton::middle, shiftKey::shift);
    EXPECT_EQ(t.status(), "Stop = s");
    EXPECT_EQ(joystick.SelLength(), 0);
    List1_MouseDown(editor, 0, mouseButton::left, shiftKey::shift);
    EXPECT_EQ(joystick.SelText(), "Stop");
}

TEST_F(ListEventsTest, TheRightButtonRemembersItsListForThePopUpMenu)
{
    pick(1, 0);
    List1_MouseDown(editor, 1, mouseButton::right, shiftKey::none);
    EXPECT_EQ(editor.macros.ListClicked, 1U);
    EXPECT_EQ(editor.macros.SelectedMacro, "Stop");
    const auto entries = popUpMenu(t.menus(), t.menus().mnuRHList);
    ASSERT_EQ(entries.size(), 4U);
    EXPECT_EQ(entries[0].item, &t.menus().mnuRHListInsert);
    EXPECT_EQ(entries[1].item, &t.menus().mnuFindInJF);
    EXPECT_EQ(entries[3].item, &t.menus().mnuRHListIdentify);

    t.menus().mnuFindInJF.Click();
    EXPECT_EQ(joystick.SelText(), "Stop");
    caretAt("x", 1);
    t.menus().mnuRHListInsert.Click();
    EXPECT_EQ(joystick.Text(), "x Stop ");
    t.menus().mnuRHListIdentify.Click();
    EXPECT_EQ(t.lastBox().title, "You're kidding me...right?!");
}

TEST_F(ListEventsTest, AnEmptyListPicksNothing)
{
    frame.List1[1].Items = std::vector<CheckListBox::Item>();
    editor.macros.SelectedMacro = "Fire";
    List1_MouseDown(editor, 1, mouseButton::left, shiftKey::shift);
    List1_MouseMove(editor, 1, mouseButton::left, shiftKey::shift, 0);
    List1_KeyDown(editor, 1, shiftKey::shift);
    EXPECT_EQ(editor.macros.SelectedMacro, "Fire");
    EXPECT_EQ(joystick.SelLength(), 0);
    EXPECT_EQ(List1_OLEStartDrag(editor, 1), "");
    List1_DblClick(editor, 1);
    EXPECT_EQ(joystick.Text(), "e Stop Fire\r\n");
}

TEST_F(ListEventsTest, AMoveWithAButtonShowsTheMacroAndWithoutOneOnlyResetsThePointer)
{
    pick(0, 1);
    frame.MousePointer = MousePointer::SizeWestEast;
    List1_MouseMove(editor, 0, mouseButton::none, shiftKey::shift, 0);
    EXPECT_EQ(frame.MousePointer.get(), MousePointer::Default);
    EXPECT_EQ(t.status(), "");
    List1_MouseMove(editor, 0, mouseButton::right, shiftKey::none, 0);
    EXPECT_EQ(t.status(), "Stop = s");
    List1_MouseMove(editor, 0, mouseButton::left, shiftKey::shift, 0);
    EXPECT_EQ(joystick.SelText(), "Stop");
}

TEST_F(ListEventsTest, AMoveWithTheLeftButtonAndTheSizingPointerIsTheFramesOwn)
{
    frame.MousePointer = MousePointer::SizeWestEast;
    List1_MouseMove(editor, 0, mouseButton::left, shiftKey::none, 249 * 15.0F);
    EXPECT_EQ(t.settings().MacroFrameWidth, 250);
    EXPECT_EQ(frame.MousePointer.get(), MousePointer::SizeWestEast);
}

TEST_F(ListEventsTest, ADragCarriesTheNameBetweenBlanks)
{
    pick(0, 0);
    EXPECT_EQ(List1_OLEStartDrag(editor, 0), " Fire ");
}

TEST_F(ListEventsTest, TheRightButtonPopsUpNothingOnAnEmptyList)
{
    editor.macros.ListClicked = 7;
    frame.List1[1].Items = std::vector<CheckListBox::Item>();
    List1_MouseDown(editor, 1, mouseButton::right, shiftKey::none);
    EXPECT_EQ(editor.macros.ListClicked, 7U) << "the menu would be for it";
    List1_MouseDown(editor, 0, mouseButton::right, shiftKey::none);
    EXPECT_EQ(editor.macros.ListClicked, 0U);
}

// ---- double click ---------------------------------------------------------------------------------------------------

TEST_F(ListEventsTest, DoubleClickAtTheStartOfTheTextAddsNoBlankInFront)
{
    caretAt("abc", 0);
    doubleClickFire();
    EXPECT_EQ(joystick.Text(), "Fire abc");
    EXPECT_EQ(joystick.SelStart(), 5);
    EXPECT_EQ(editor.joystick.Caret, 5);
}

TEST_F(ListEventsTest, DoubleClickBehindABlankAddsNoBlankInFront)
{
    caretAt("ab c", 3);
    doubleClickFire();
    EXPECT_EQ(joystick.Text(), "ab Fire c");
    EXPECT_EQ(joystick.SelStart(), 8);
}

TEST_F(ListEventsTest, DoubleClickBehindAWordAddsABlankAndStopsBeforeTheTrailingOne)
{
    caretAt("ab", 2);
    doubleClickFire();
    EXPECT_EQ(joystick.Text(), "ab Fire ");
    EXPECT_EQ(joystick.SelStart(), 7);
    EXPECT_EQ(editor.joystick.Caret, 7);
}

TEST_F(ListEventsTest, AfterColouringOrRemovingColourDoubleClickWritesAtACaretBeyond32767)
{
    for (MenuItem* command : {&t.menus().mnuViewColourJoystick, &t.menus().mnuRemoveColourJoystick}) {
        caretAt(std::string(40000, ' '), 35000);
        command->Click();
        doubleClickFire();
        EXPECT_EQ(joystick.Text().find("Fire "), 35000U);
        EXPECT_EQ(joystick.SelStart(), 35005);
        EXPECT_EQ(editor.joystick.Caret, 35005);
    }
}

TEST_F(ListEventsTest, AfterAReplaceAllThatFoundNothingDoubleClickStillWritesAndReplacesTheCharacterBehindTheCaret)
{
    joystick.setText("one two");
    joystick.setSelStart(3);
    FindAndReplace& window = t.program().findAndReplace;
    t.menus().mnuEditReplace.Click();
    window.ComboTextReplaceFind.Text = "absent";
    window.Command6.Click();
    ASSERT_EQ(editor.joystick.Caret, -1);
    ASSERT_EQ(joystick.SelStart(), 3);
    doubleClickFire();
    EXPECT_EQ(joystick.Text(), "oneFire two") << "the one character that was read was a blank";
    EXPECT_EQ(editor.joystick.Caret, 4);
    EXPECT_EQ(joystick.SelStart(), 4);
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_List1_DblClick");
}

TEST_F(ListEventsTest, DoubleClickReplacesASelection)
{
    caretAt("one two three", 4);
    joystick.setSelLength(3);
    doubleClickFire();
    EXPECT_EQ(joystick.Text(), "one Fire  three");
    EXPECT_EQ(joystick.SelStart(), 9);
    EXPECT_EQ(editor.joystick.Caret, 9);
}

TEST_F(ListEventsTest, DoubleClickWritesInColour0AsOneUserEdit)
{
    caretAt("ab ", 0);
    joystick.setSelLength(3);
    joystick.setSelColor(255);
    caretAt("ab ", 3);
    const std::size_t levels = editor.joystick.Undo.Levels.size();
    doubleClickFire();
    EXPECT_EQ(joystick.formatAt(0).colour, 255);
    EXPECT_EQ(joystick.formatAt(3).colour, 0);
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), levels + 1);
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
}

TEST_F(ListEventsTest, OneUndoAfterDoubleClickOverASelectionBringsTheOldTextWithItsColoursBack)
{
    t.settings().HighlightLineOnUndo = 0;
    caretAt("one two three", 4);
    joystick.setSelLength(3);
    joystick.setSelColor(255);
    const RichText before = joystick.TextRTF();
    const std::size_t levels = editor.joystick.Undo.Levels.size();
    doubleClickFire();
    EXPECT_EQ(joystick.formatAt(4).colour, 0);
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), levels + 1);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "one two three");
    EXPECT_TRUE(joystick.TextRTF() == before);
}

TEST_F(ListEventsTest, DoubleClickOpensAnUndoLevelThoughAKeyChangedNothing)
{
    t.settings().HighlightLineOnUndo = 0;
    caretAt("ab ", 3);
    joystick.KeyPress('x'); // as in a pane that refuses the key
    doubleClickFire();
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "ab ");
}

TEST_F(ListEventsTest, DoubleClickSelectsTab1WhenTheJoystickPaneIsHidden)
{
    editor.TabStrip1.Select(2);
    doubleClickFire();
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 1);
    EXPECT_EQ(joystick.Text(), "Fire e Stop Fire\r\n");
}

TEST_F(ListEventsTest, ARowBehindTheLastIsNoMacro)
{
    std::vector<CheckListBox::Item> items{{.Text = "Fire"}, {.Text = "gone"}};
    items.pop_back(); // its text may still be there
    frame.List1[0].Items = std::move(items);
    editor.macros.SelectedMacro = "before";
    for (const int row : {1, -1}) {
        pick(0, row);
        List1_KeyDown(editor, 0, shiftKey::none);
        EXPECT_EQ(editor.macros.SelectedMacro, "before") << row;
    }
}

TEST_F(ListEventsTest, TheRightButtonOpensTheMenuOfAListThatIsThereAndHasMacros)
{
    editor.macros.ListClicked = 7;
    List1_MouseDown(editor, frame.List1.size(), mouseButton::right, shiftKey::none);
    EXPECT_TRUE(t.dialogues.popUps.empty());
    frame.List1[1].Items = std::vector<CheckListBox::Item>{};
    List1_MouseDown(editor, 1, mouseButton::right, shiftKey::none);
    EXPECT_TRUE(t.dialogues.popUps.empty());
    EXPECT_EQ(editor.macros.ListClicked, 7U);
    List1_MouseDown(editor, 0, mouseButton::left, shiftKey::none);
    EXPECT_TRUE(t.dialogues.popUps.empty());
    List1_MouseDown(editor, 0, mouseButton::right, shiftKey::none);
    EXPECT_EQ(t.dialogues.popUps, std::vector<std::string>{"mnuRHList"});
    EXPECT_EQ(editor.macros.ListClicked, 0U);
}

TEST_F(ListEventsTest, ATextThatIsNoHeadingLeavesTheListsAsTheyAre)
{
    choose("brakes");
    ASSERT_TRUE(frame.List1[1].Visible);
    t.program().shared.errors.ErrorProcedure.clear();
    editor.macros.SelectedMacro = "before";
    for (const char* text : {"", "brake", "brakes "}) {
        choose(text);
        EXPECT_TRUE(frame.List1[1].Visible) << text;
        EXPECT_FALSE(frame.List1[0].Visible) << text;
        EXPECT_EQ(editor.macros.SelectedMacro, "before") << text;
        EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "") << text;
    }
}

// ---- lists that aren't there, what is dragged -----------------------------------------------------------------------

TEST_F(ListEventsTest, AListThatIsNotThereIsLeftAlone)
{
    const std::size_t none = frame.List1.size();
    editor.macros.SelectedMacro = "kept";
    const std::string before = joystick.Text();
    List1_MouseDown(editor, none, mouseButton::right, shiftKey::none);
    List1_DblClick(editor, none);
    List1_KeyDown(editor, none, shiftKey::none);
    EXPECT_EQ(List1_OLEStartDrag(editor, none), "");
    EXPECT_EQ(editor.macros.SelectedMacro, "kept");
    EXPECT_TRUE(t.dialogues.popUps.empty());
    EXPECT_EQ(joystick.Text(), before);
}

TEST_F(ListEventsTest, ADragFindsTheMacroOnlyWithTheLeftButtonAndShift)
{
    editor.TabStrip1.Select(1);
    pick(0, 0);
    const auto foundBy = [&](int buttons, int shift) {
        joystick.setSelStart(0);
        List1_MouseMove(editor, 0, buttons, shift, 10);
        return joystick.SelLength() != 0;
    };
    EXPECT_FALSE(foundBy(mouseButton::left, shiftKey::none));
    EXPECT_FALSE(foundBy(mouseButton::right, shiftKey::shift));
    EXPECT_TRUE(foundBy(mouseButton::left, shiftKey::shift));
}

TEST_F(ListEventsTest, ADragThatBeganAtTheFramesEdgeGoesOnOverTheList)
{
    editor.ScaleWidth = 1000;
    FrameMacros_MouseMove(editor, false, 184 * 15.0F, true);
    ASSERT_EQ(frame.MousePointer.get(), MousePointer::SizeWestEast);
    List1_MouseMove(editor, 0, mouseButton::left, shiftKey::none, 299 * 15.0F);
    EXPECT_EQ(t.settings().MacroFrameWidth, 300);
    EXPECT_EQ(frame.MousePointer.get(), MousePointer::SizeWestEast);
}

TEST_F(ListEventsTest, AHeadingWithoutMacrosPicksNone)
{
    frame.List1[1].Items = std::vector<CheckListBox::Item>();
    frame.List1[1].ListIndex = -1;
    choose("BRAKES");
    EXPECT_TRUE(frame.List1[1].Visible);
    EXPECT_EQ(frame.List1[1].ListIndex, -1);
}

TEST_F(ListEventsTest, DoubleClickReplacesTheSelectionAndRecordsTheCaret)
{
    joystick.setText("one two three");
    joystick.setSelStart(4);
    joystick.setSelLength(3);
    editor.joystick.Caret = 11;
    doubleClickFire();
    EXPECT_EQ(joystick.Text(), "one Fire  three");
    EXPECT_EQ(joystick.SelStart(), 9);
    EXPECT_EQ(editor.joystick.Caret, 9);
}

TEST_F(ListEventsTest, AMacroDefinedAtTheBeginningOfTheFileIsShownThere)
{
    editor.TabStrip1.Select(2);
    editor.MacroText.setText("Stop = s\r\nFire = f");
    editor.macros.MacroFileLines = {"Stop = s", "Fire = f"};
    choose("BRAKES");
    EXPECT_EQ(editor.MacroText.SelStart(), 0);
    EXPECT_EQ(editor.MacroText.SelLength(), 8);
}

} // namespace
} // namespace tarvex
