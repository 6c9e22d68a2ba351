#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct PairClipboard : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
};

TEST_F(PairClipboard, CutAndPasteMoveTextWithItsColours)
{
    t.typeJoystick("Rem text");
    editor.JoystickText.setSelStart(0);
    editor.JoystickText.setSelLength(3);
    editor.JoystickText.setSelColor(255);
    t.menus().mnuEditCut.Click();
    EXPECT_EQ(editor.JoystickText.Text(), " text");
    EXPECT_EQ(t.clipboard.content.text, "Rem");
    editor.TabStrip1.Select(2);
    t.menus().mnuEditPaste.Click();
    EXPECT_EQ(editor.MacroText.Text(), "Rem");
    EXPECT_EQ(editor.MacroText.formatAt(0).colour, 255);
    EXPECT_EQ(editor.macro.Changed, changed::modified);
}

TEST_F(PairClipboard, PlainTextFromElsewhereIsPastedWithQuestionMarksForWhatTheCodePageLacks)
{
    t.clipboard.content = {"caf\xC3\xA9 \xE2\x82\xAC \xE6\xBC\xA2\nnext", ""};
    t.menus().mnuEditPaste.Click();
    EXPECT_EQ(editor.JoystickText.Text(), "caf\xE9 \x80 ?\r\nnext");
}

TEST_F(PairClipboard, CharactersThatTheCodePageLacksAreCountedInTheStatusBar)
{
    t.clipboard.content = {"why? \xE6\xBC\xA2\xE5\xAD\x97 \xE2\x98\x83?", ""};
    t.menus().mnuEditPaste.Click();
    EXPECT_EQ(t.status(), "3 characters are not in the Windows character set and became ?");
    t.clipboard.content = {"\xE2\x98\x83", ""};
    t.menus().mnuEditPaste.Click();
    EXPECT_EQ(t.status(), "1 character is not in the Windows character set and became ?");
    editor.status("kept");
    t.clipboard.content = {"why? \xE2\x82\xAC", ""};
    t.menus().mnuEditPaste.Click();
    EXPECT_EQ(t.status(), "kept");
}

TEST_F(PairClipboard, TextWithFontsFromElsewhereTakesThePanesFontAndKeepsItsColours)
{
    t.typeJoystick("x");
    const CharacterFormat own = editor.JoystickText.formatAt(0);
    t.clipboard.content = {"big",
                           "{\\rtf1{\\fonttbl{\\f0 Courier;}}{\\colortbl;\\red255;}\\f0\\fs72\\b\\i\\ul\\cf1 big}"};
    t.menus().mnuEditPaste.Click();
    EXPECT_EQ(editor.JoystickText.Text(), "xbig");
    const CharacterFormat& pasted = editor.JoystickText.formatAt(2);
    EXPECT_EQ(pasted.colour, 255);
    CharacterFormat black = pasted;
    black.colour = own.colour;
    EXPECT_EQ(black, own);
}

TEST_F(PairClipboard, PasteAsPlainTextLeavesTheColoursBehind)
{
    t.clipboard.content = {"red", "{\\rtf1{\\colortbl;\\red255;}\\cf1 red}"};
    t.menus().mnuEditPastePlain.Click();
    EXPECT_EQ(editor.JoystickText.Text(), "red");
    EXPECT_EQ(editor.JoystickText.formatAt(0).colour, 0);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(editor.JoystickText.Text(), "");
    t.clipboard.content = {"", "{\\rtf1 only}"}; // without a plain form
    t.menus().mnuEditPastePlain.Click();
    EXPECT_EQ(editor.JoystickText.Text(), "only");
}

TEST_F(PairClipboard, AnEmptyClipboardPastesNothing)
{
    t.menus().mnuEditPaste.Click();
    EXPECT_EQ(editor.joystick.Changed, changed::noText);
}

TEST_F(PairClipboard, AProtectedPaneTakesNoPasteCutOrDelete)
{
    t.typeMacro("A = a");
    editor.TabStrip1.Select(2);
    t.menus().mnuPreferencesProtectMacroFile.Click();
    t.menus().mnuEditSelectAll.Click();
    t.clipboard.content = {"no", ""};
    t.menus().mnuEditPaste.Click();
    t.menus().mnuEditPastePlain.Click();
    t.menus().mnuEditDelete.Click();
    t.menus().mnuEditCut.Click();
    EXPECT_EQ(editor.MacroText.Text(), "A = a");
    EXPECT_EQ(t.clipboard.content.text, "no");
    t.menus().mnuEditCopy.Click();
    EXPECT_EQ(t.clipboard.content.text, "A = a");
}

TEST_F(PairClipboard, CopyWithoutASelectionKeepsTheClipboard)
{
    t.clipboard.content = {"kept", ""};
    t.menus().mnuEditCopy.Click();
    t.menus().mnuEditCut.Click();
    EXPECT_EQ(t.clipboard.content.text, "kept");
}

TEST_F(PairClipboard, DeleteTakesTheSelection)
{
    t.typeJoystick("abc");
    editor.JoystickText.setSelStart(1);
    editor.JoystickText.setSelLength(1);
    t.menus().mnuEditDelete.Click();
    EXPECT_EQ(editor.JoystickText.Text(), "ac");
}

TEST_F(PairClipboard, CommandsAndButtonsAreOfferedWhereTheyDoSomething)
{
    editor.TabStrip1.Select(2);
    Pane& pane = editor.MacroText;
    pane.setText("text");
    Mum& mum = t.program().mum;
    for (const bool selection : {true, false}) {
        for (const bool locked : {true, false}) {
            for (const bool holdsText : {true, false}) {
                pane.setSelStart(1);
                pane.setSelLength(selection ? 1 : 0);
                pane.Locked = locked;
                t.clipboard.content = {holdsText ? "x" : "", ""};
                editor.operations.UpdateCCPButtons();
                SCOPED_TRACE(std::string(selection ? "selection " : "") + (locked ? "locked " : "") +
                             (holdsText ? "text" : ""));
                EXPECT_EQ(t.menus().mnuEditCut.Enabled, selection && !locked);
                EXPECT_EQ(mum.Toolbar1.Buttons(7).Enabled, selection && !locked);
                EXPECT_EQ(t.menus().mnuEditCopy.Enabled, selection);
                EXPECT_EQ(mum.Toolbar1.Buttons(8).Enabled, selection);
                EXPECT_EQ(t.menus().mnuEditPaste.Enabled, holdsText && !locked);
                EXPECT_EQ(mum.Toolbar1.Buttons(9).Enabled, holdsText && !locked);
                EXPECT_EQ(t.menus().mnuEditPastePlain.Enabled, holdsText && !locked);
            }
        }
    }
}

TEST_F(PairClipboard, ASelectionOfOneCharacterIsOneToo)
{
    Pane& pane = editor.JoystickText;
    pane.setText("abc");
    pane.setSelStart(1);
    pane.setSelLength(1);
    t.menus().mnuEditCopy.Click();
    EXPECT_EQ(t.clipboard.content.text, "b");
    t.menus().mnuEditCut.Click();
    EXPECT_EQ(pane.Text(), "ac");
    pane.setSelStart(0);
    pane.setSelLength(1);
    t.menus().mnuEditDelete.Click();
    EXPECT_EQ(pane.Text(), "c");
}

TEST_F(PairClipboard, CommandsLeaveTheButtonsUpToDate)
{
    Pane& pane = editor.JoystickText;
    const auto expectOffered = [&](const char* command, bool cut, bool paste) {
        EXPECT_EQ(t.menus().mnuEditCut.Enabled, cut) << command;
        EXPECT_EQ(t.menus().mnuEditPaste.Enabled, paste) << command;
    };
    pane.setText("one two");
    t.menus().mnuEditSelectAll.Click();
    expectOffered("Select All", true, false);
    t.menus().mnuEditCopy.Click();
    expectOffered("Copy", true, true);
    t.menus().mnuEditDelete.Click();
    expectOffered("Delete", false, true);
    t.menus().mnuEditPaste.Click();
    t.menus().mnuEditSelectAll.Click();
    t.clipboard.content = {};
    t.menus().mnuEditCut.Click();
    expectOffered("Cut", false, true);
    t.menus().mnuEditPaste.Click();
    t.menus().mnuEditSelectAll.Click();
    t.menus().mnuEditPastePlain.Click();
    expectOffered("Paste as plain text", false, true);
    EXPECT_EQ(pane.Text(), "one two");
}

} // namespace
} // namespace tarvex
