#include "language/commands/coloured_insertion.h"

#include "support/test_program.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace tarvex {
namespace {

constexpr Colour red = 255;

struct InsertionTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Pane& joystick = editor.JoystickText;
    Pane& macro = editor.MacroText;

    void typeAt(const std::string& text, std::int64_t caret)
    {
        t.typeJoystick(text);
        joystick.setSelStart(caret);
    }
    std::string addedSpace()
    {
        editor.insertion.InsertText = "word";
        AddSpaceToColouredText(editor);
        return editor.insertion.InsertText;
    }
};

TEST_F(InsertionTest, InsertColouredStringWritesTheSchemesFontAndLeavesThePanePlain)
{
    t.settings().TextFontName = "Courier New";
    t.settings().TextFontSize = 12;
    t.settings().TextFontBold = 1;
    int focused = 0;
    const auto listening = joystick.focusWanted.connect([&] { ++focused; });
    InsertColouredString(editor, "BTN S1", red);
    const CharacterFormat& format = joystick.formatAt(3);
    EXPECT_EQ(format.colour, red);
    EXPECT_EQ(format.fontName, "Courier New");
    EXPECT_EQ(format.fontSize, 12);
    EXPECT_TRUE(format.bold);
    EXPECT_EQ(format.indent, 20);
    EXPECT_EQ(joystick.SelStart(), 6);
    EXPECT_EQ(editor.joystick.Caret, 6);
    EXPECT_EQ(focused, 1);
    t.typeJoystick("x");
    EXPECT_EQ(joystick.formatAt(6).colour, 0);
}

TEST_F(InsertionTest, AnInsertionOverASelectionRemovesItFirstAndKeepsItsOwnColour)
{
    t.typeJoystick("one two three");
    joystick.setSelStart(4);
    joystick.setSelLength(3);
    InsertColouredString(editor, "2", red);
    EXPECT_EQ(joystick.Text(), "one 2 three");
    EXPECT_EQ(joystick.formatAt(4).colour, red);
    EXPECT_EQ(joystick.formatAt(5).colour, 0);
    EXPECT_EQ(joystick.SelStart(), 5);
}

TEST_F(InsertionTest, ARemIntoTheMacroPaneIsBlackByInsertColouredStringAndColouredByTheOther)
{
    editor.TabStrip1.Select(2);
    InsertColouredString(editor, "Rem a", red);
    InsertColouredStringNoSpace(editor, "Rem b", red);
    EXPECT_EQ(macro.Text(), "Rem aRem b");
    EXPECT_EQ(macro.formatAt(0).colour, 0);
    EXPECT_EQ(macro.formatAt(5).colour, red);
    EXPECT_EQ(editor.macro.Caret, 10);
    EXPECT_EQ(joystick.Text(), "");
}

TEST_F(InsertionTest, AddSpaceToColouredTextAddsNothingAtTheStartOfTheText)
{
    typeAt("text", 0);
    EXPECT_EQ(addedSpace(), "word");
}

TEST_F(InsertionTest, AddSpaceToColouredTextAddsNothingOverASelection)
{
    typeAt("text", 2);
    joystick.setSelLength(1);
    EXPECT_EQ(addedSpace(), "word");
}

TEST_F(InsertionTest, AddSpaceToColouredTextKeepsAWordFromTouchingTheOneBefore)
{
    typeAt("ab c\r\nd", 2);
    EXPECT_EQ(addedSpace(), " word");
    joystick.setSelStart(3); // behind the blank
    EXPECT_EQ(addedSpace(), "word");
    joystick.setSelStart(6); // at the start of a line
    EXPECT_EQ(addedSpace(), "word");
    joystick.setSelStart(7);
    EXPECT_EQ(addedSpace(), " word");
}

TEST_F(InsertionTest, InsertBlackTextTakesDefaultTextColour)
{
    typeAt("ab", 2);
    t.program().shared.DefaultTextColour = 77;
    editor.insertion.InsertText = "cd";
    InsertBlackText(editor);
    EXPECT_EQ(joystick.Text(), "ab cd");
    EXPECT_EQ(joystick.formatAt(3).colour, 77);
    EXPECT_EQ(t.program().mum.Picture1.get(), 77);
}

TEST_F(InsertionTest, InsertBlackBlanksWritesFiveInColour0)
{
    InsertColouredString(editor, "R", red);
    t.program().shared.DefaultTextColour = 77;
    InsertBlackBlanks(editor);
    EXPECT_EQ(joystick.Text(), "R     ");
    EXPECT_EQ(joystick.formatAt(1).colour, 0);
    EXPECT_EQ(editor.joystick.Caret, 6);
    EXPECT_EQ(t.program().mum.Picture1.get(), 77);
}

TEST_F(InsertionTest, InsertCarriageReturnWritesOneLineEndAndLeavesASelectionAlone)
{
    typeAt("abcd", 1);
    joystick.setSelLength(2);
    InsertCarriageReturn(editor);
    EXPECT_EQ(joystick.Text(), "a\r\nbcd");
    EXPECT_EQ(joystick.SelStart(), 3);
    EXPECT_EQ(editor.joystick.Caret, 3);
}

// ---- one edit -------------------------------------------------------------------------------------------------------

TEST_F(InsertionTest, AWholeInsertionIsOneEditAndOneUndoStep)
{
    typeAt("ab\r\n", 4);
    const std::size_t levels = editor.joystick.Undo.Levels.size();
    BeginColInsert(editor);
    EXPECT_EQ(t.program().shared.IsLoading, 1);
    InsertColouredString(editor, "BTN ", red);
    InsertBlackBlanks(editor);
    InsertCarriageReturn(editor);
    EndColInsert(editor);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), levels + 1);
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
    EXPECT_EQ(joystick.Text(), "ab\r\nBTN      \r\n");
    EXPECT_TRUE(t.menus().mnuEditUndo.Enabled);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "ab\r\n");
    EXPECT_EQ(joystick.SelStart(), 4);
}

TEST_F(InsertionTest, UndoGoesBackToTheStateBeforeTheInsertionThoughAKeyChangedNothing)
{
    t.typeJoystick("one");
    joystick.KeyPress('x'); // as in a pane that refuses the key
    BeginColInsert(editor);
    InsertColouredString(editor, " two", red);
    EndColInsert(editor);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "one");
}

TEST_F(InsertionTest, AnInsertionAfterUndoKeepsWhatWasUndoneInReach)
{
    t.settings().HighlightLineOnUndo = 0;
    t.typeJoystick("one");
    t.typeJoystick(" two");
    t.menus().mnuEditUndo.Click();
    BeginColInsert(editor);
    InsertColouredString(editor, "!", red);
    EndColInsert(editor);
    EXPECT_EQ(joystick.Text(), "one!");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "one");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "one two");
}

TEST_F(InsertionTest, TheMacroPaneHasItsOwnUndoStep)
{
    t.typeMacro("A = a");
    editor.TabStrip1.Select(2);
    BeginColInsert(editor);
    InsertColouredStringNoSpace(editor, "b", red);
    EndColInsert(editor);
    EXPECT_EQ(editor.macro.Changed, changed::modified);
    EXPECT_EQ(editor.joystick.Changed, changed::noText);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(macro.Text(), "A = a");
}

// ---- CheckAtLineBeginning -------------------------------------------------------------------------------------------

TEST_F(InsertionTest, CheckAtLineBeginningDoesNothingInAnEmptyPaneOrOverASelection)
{
    CheckAtLineBeginning(editor);
    EXPECT_EQ(joystick.Text(), "");
    typeAt("abcd", 0);
    joystick.setSelLength(1);
    CheckAtLineBeginning(editor);
    EXPECT_EQ(joystick.Text(), "abcd");
    EXPECT_EQ(joystick.SelLength(), 1);
}

TEST_F(InsertionTest, CheckAtLineBeginningDoesNothingAtALinesEnd)
{
    for (const std::int64_t caret : {3, 5, 10}) { // the end of a full, an empty and the last line
        joystick.setText("abc\r\n\r\ndef");
        joystick.setSelStart(caret);
        CheckAtLineBeginning(editor);
        EXPECT_EQ(joystick.Text(), "abc\r\n\r\ndef") << caret;
        EXPECT_EQ(joystick.SelStart(), caret);
    }
}

TEST_F(InsertionTest, CheckAtLineBeginningOpensALineBehindTheCaretsLineAlsoFromItsBeginning)
{
    for (const std::int64_t caret : {0, 1, 2}) {
        joystick.setText("abc\r\nd");
        joystick.setSelStart(caret);
        CheckAtLineBeginning(editor);
        EXPECT_EQ(joystick.Text(), "abc\r\n\r\nd") << caret;
        EXPECT_EQ(joystick.SelStart(), 5);
        EXPECT_EQ(editor.joystick.Caret, 5);
        EXPECT_EQ(t.status(3), "Line no: 2");
    }
}

TEST_F(InsertionTest, CheckAtLineBeginningInALastLineWithoutLineEndSparesOnlyTheLastTwoPlaces)
{
    for (const std::int64_t caret : {4, 3}) {
        joystick.setText("abcd");
        joystick.setSelStart(caret);
        CheckAtLineBeginning(editor);
        EXPECT_EQ(joystick.Text(), "abcd") << caret;
    }
    joystick.setSelStart(2);
    CheckAtLineBeginning(editor);
    EXPECT_EQ(joystick.Text(), "abcd\r\n");
    EXPECT_EQ(joystick.SelStart(), 6);
}

TEST_F(InsertionTest, CheckAtLineBeginningInAnEmptyLastLineDoesNothing)
{
    typeAt("abc\r\n", 5);
    CheckAtLineBeginning(editor);
    EXPECT_EQ(joystick.Text(), "abc\r\n");
}

// ---- a protected pane, the record of the caret ----------------------------------------------------------------------

TEST_F(InsertionTest, NothingIsInsertedIntoAProtectedFile)
{
    t.typeMacro("A = a\r\nB = b");
    t.menus().mnuPreferencesProtectMacroFile.Click();
    editor.TabStrip1.Select(2);
    const std::string refused = t.status();
    for (const auto& insert : std::vector<std::function<void()>>{
             [&] { InsertBlackBlanks(editor); }, [&] { InsertCarriageReturn(editor); },
             [&] { CheckAtLineBeginning(editor); }, [&] { InsertColouredString(editor, "x", red); },
             [&] {
                 BeginColInsert(editor);
                 EndColInsert(editor);
             }}) {
        macro.setSelStart(2);
        editor.status("");
        insert();
        EXPECT_EQ(macro.Text(), "A = a\r\nB = b");
        EXPECT_EQ(macro.SelStart(), 2);
        EXPECT_EQ(t.status(), refused);
    }
}

TEST_F(InsertionTest, ALineOfItsOwnIsRecordedAndTakesTheKeyboard)
{
    typeAt("BTN S1", 3);
    editor.joystick.SelectionLength = 5;
    int focused = 0;
    const auto listening = joystick.focusWanted.connect([&] { ++focused; });
    CheckAtLineBeginning(editor);
    EXPECT_EQ(joystick.Text(), "BTN S1\r\n");
    EXPECT_EQ(editor.joystick.Caret, 8);
    EXPECT_EQ(editor.joystick.SelectionLength, 0);
    EXPECT_EQ(focused, 1);
    EXPECT_EQ(t.status(3), "Line no: 2");
}

TEST_F(InsertionTest, ATextOfOneCharacterOrASelectionOfOneIsCheckedLikeAnyOther)
{
    typeAt("x", 0);
    joystick.setSelLength(1);
    CheckAtLineBeginning(editor);
    EXPECT_EQ(joystick.Text(), "x") << "a selection is left alone";
    joystick.setText("ab\r\nc");
    joystick.setSelStart(0);
    joystick.setSelLength(1);
    CheckAtLineBeginning(editor);
    EXPECT_EQ(joystick.Text(), "ab\r\nc");
    InsertColouredString(editor, "y", red);
    EXPECT_EQ(joystick.Text(), "yb\r\nc");
    EXPECT_EQ(joystick.formatAt(0).colour, red);
    EXPECT_EQ(editor.joystick.SelectionLength, 0);
}

TEST_F(InsertionTest, BlackBlanksAreBlackAmongColouredText)
{
    typeAt("ab", 0);
    joystick.setSelLength(2);
    joystick.setSelColor(red);
    joystick.setSelStart(1);
    InsertBlackBlanks(editor);
    EXPECT_EQ(joystick.Text(), "a     b");
    EXPECT_EQ(joystick.formatAt(3).colour, 0);
}

} // namespace
} // namespace tarvex
