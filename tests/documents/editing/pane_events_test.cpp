#include "documents/editing/pane_events.h"

#include "documents/editing/blank_strings.h"
#include "documents/editing/pane_keys.h"
#include "platform/input.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct PaneEvents : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Menus& menus = t.menus();
    Pane& joystick = editor.JoystickText;

    PaneEvents()
    {
        joystick.setText("one\r\ntwo\r\nthree");
        joystick.setSelStart(6);
        editor.mum.StatusBar.Panels(panel::line).Text = "";
    }
    void select(std::int64_t start, std::int64_t length)
    {
        joystick.setSelStart(start);
        joystick.setSelLength(length);
    }
};

// ---- keys ----

TEST_F(PaneEvents, ACtrlKeyRunsItsCommandAndIsSwallowed)
{
    int runs = 0;
    for (const PaneKey& key : paneKeys()) (menus.*key.joystick).handler = [&] { ++runs; };
    for (const PaneKey& key : paneKeys()) (menus.*key.joystick).Enabled = true;
    for (const PaneKey& key : paneKeys()) EXPECT_TRUE(Text_KeyDown(editor, editor.joystick, key.keys)) << key.keys;
    EXPECT_EQ(runs, 18);
    EXPECT_EQ(t.status(3), "") << "the handler ends there";
}

TEST_F(PaneEvents, ACtrlKeyOfADisabledCommandIsLeftToTheText)
{
    menus.mnuEditCut.Enabled = false;
    EXPECT_FALSE(Text_KeyDown(editor, editor.joystick, "Ctrl+X"));
    EXPECT_EQ(t.status(3), "Line no: 2");
    EXPECT_FALSE(Text_KeyDown(editor, editor.joystick, "Ctrl+Q"));
}

TEST_F(PaneEvents, ACtrlKeyNotesTheCaretFirst)
{
    std::int64_t noted = -1;
    menus.mnuEditCopy.handler = [&] { noted = editor.joystick.Caret; };
    Text_KeyDown(editor, editor.joystick, "Ctrl+C");
    EXPECT_EQ(noted, 6);
}

TEST_F(PaneEvents, TheHugeBlankStringOperationsDoNothing)
{
    const RichText joystickBefore = joystick.TextRTF();
    const RichText macroBefore = editor.MacroText.TextRTF();
    AddHugeBlankStringJF(editor);
    AddHugeBlankStringMF(editor);
    RemoveHugeBlankStringJF(editor);
    RemoveHugeBlankStringMF(editor);
    EXPECT_TRUE(joystick.TextRTF() == joystickBefore);
    EXPECT_TRUE(editor.MacroText.TextRTF() == macroBefore);
    EXPECT_EQ(joystick.SelStart(), 6);
}

TEST_F(PaneEvents, TheMacroPaneHasItsOwnFileCommands)
{
    editor.TabStrip1.Select(2);
    std::string run;
    menus.mnuFileNewJoystick.handler = [&] { run += "joystick "; };
    menus.mnuFileNewMacro.handler = [&] { run += "macro "; };
    EXPECT_TRUE(Text_KeyDown(editor, editor.macro, "Ctrl+N"));
    EXPECT_EQ(run, "macro ");
}

TEST_F(PaneEvents, CtrlTabFromTheJoystickPaneReachesTab2AndTheMacroPaneHasTheFocus)
{
    int focused = 0;
    const auto focus = editor.MacroText.focusWanted.connect([&] { ++focused; });
    EXPECT_TRUE(Text_KeyDown(editor, editor.joystick, "Ctrl+Tab"));
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 2);
    EXPECT_EQ(focused, 1);
    EXPECT_TRUE(Text_KeyDown(editor, editor.macro, "Ctrl+Tab"));
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 1);
    EXPECT_EQ(joystick.Text(), "one\r\ntwo\r\nthree");
}

TEST_F(PaneEvents, EveryOtherKeyShowsTheLine)
{
    EXPECT_FALSE(Text_KeyDown(editor, editor.joystick, ""));
    EXPECT_EQ(t.status(3), "Line no: 2");
}

TEST_F(PaneEvents, AReleasedKeyNotesCaretAndSelectionAndShowsTheLine)
{
    int updates = 0;
    editor.operations.UpdateCCPButtons = [&] { ++updates; };
    select(10, 2);
    Text_KeyUp(editor, editor.joystick);
    EXPECT_EQ(editor.joystick.Caret, 10);
    EXPECT_EQ(editor.HighlightLength, 2);
    EXPECT_EQ(t.status(3), "Line no: 3");
    EXPECT_EQ(updates, 1);
}

TEST_F(PaneEvents, EscapePopsUpTheInsertMenuAtTheCaretWithoutItsTip)
{
    bool shown = true;
    t.dialogues.whilePoppedUp = [&] { shown = menus.mnuInsertDivider8.Visible || menus.mnuInsertQuickTip.Visible; };
    EXPECT_TRUE(Text_KeyDown(editor, editor.joystick, "Esc"));
    EXPECT_EQ(t.dialogues.popUpsAtCaret, std::vector<std::string>{"mnuInsert"});
    EXPECT_FALSE(shown);
    EXPECT_TRUE(menus.mnuInsertDivider8.Visible);
    EXPECT_TRUE(menus.mnuInsertQuickTip.Visible);
}

TEST_F(PaneEvents, ACommandOfTheInsertMenuThatFailsLeavesTheTipInTheMenuBar)
{
    t.dialogues.whilePoppedUp = [] { throw RuntimeError(ErrorCode::DeviceInputOutput, "no"); };
    Text_KeyDown(editor, editor.joystick, "Esc");
    EXPECT_TRUE(menus.mnuInsertQuickTip.Visible);
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_JoystickText_KeyDown");
}

TEST_F(PaneEvents, F1LooksTheSelectionUp)
{
    std::string word;
    int contents = 0;
    editor.operations.HelpKeyword = [&](const std::string& keyword) { word = keyword; };
    menus.mnuHelpContents.handler = [&] { ++contents; };
    joystick.setText("x M\xF6ve");
    select(2, 4);
    EXPECT_TRUE(Text_KeyDown(editor, editor.joystick, "F1"));
    EXPECT_EQ(word, "Möve");
    EXPECT_EQ(contents, 0);
}

TEST_F(PaneEvents, F1WithoutASelectionShowsAllHelp)
{
    int contents = 0;
    menus.mnuHelpContents.handler = [&] { ++contents; };
    editor.operations.HelpKeyword = [](const std::string&) { ADD_FAILURE() << "nothing selected"; };
    EXPECT_TRUE(Text_KeyDown(editor, editor.joystick, "F1"));
    EXPECT_EQ(contents, 1);
}

// ---- mouse ----

TEST_F(PaneEvents, AClickNotesTheCaretUnlessHelpIsAskedFor)
{
    int updates = 0;
    editor.operations.UpdateCCPButtons = [&] { ++updates; };
    editor.mum.MousePointer = MousePointer::ArrowQuestion;
    joystick.setSelStart(11);
    Text_Click(editor, editor.joystick);
    EXPECT_EQ(t.status(3), "");
    EXPECT_NE(editor.joystick.Caret, 11);
    EXPECT_EQ(updates, 1);
    editor.mum.MousePointer = MousePointer::Default;
    Text_Click(editor, editor.joystick);
    EXPECT_EQ(t.status(3), "Line no: 3");
    EXPECT_EQ(editor.joystick.Caret, 11);
    EXPECT_EQ(updates, 2);
}

TEST_F(PaneEvents, AMouseButtonAppliesTheEditingText)
{
    editor.status("Ready!");
    Text_MouseDown(editor, editor.joystick, mouseButton::left);
    EXPECT_EQ(t.status(), "Editing untitled.b50");
    EXPECT_TRUE(t.dialogues.popUps.empty());
    editor.status("Compiled well");
    Text_MouseDown(editor, editor.joystick, mouseButton::left);
    EXPECT_EQ(t.status(), "Compiled well");
}

TEST_F(PaneEvents, ARightClickWithNoSelectionOffersNoCutCopyOrDelete)
{
    Text_MouseDown(editor, editor.joystick, mouseButton::right);
    EXPECT_EQ(t.dialogues.popUps, std::vector<std::string>{"mnuRHMouse"});
    const std::vector<MenuItem*> ofSelection{&menus.mnuRHMCut, &menus.mnuRHMCopy, &menus.mnuRHMColoursSelection,
                                             &menus.mnuRHMDelete};
    for (const MenuItem* item : ofSelection) EXPECT_FALSE(item->Enabled) << item->Name;
    select(0, 1);
    Text_MouseDown(editor, editor.joystick, mouseButton::right);
    for (const MenuItem* item : ofSelection) EXPECT_TRUE(item->Enabled) << item->Name;
}

TEST_F(PaneEvents, TheMenuKeyPopsTheMenuUpAtTheCaret)
{
    Text_MouseDown(editor, editor.joystick, mouseButton::right, true);
    EXPECT_EQ(t.dialogues.popUpsAtCaret, std::vector<std::string>{"mnuRHMouse"});
    EXPECT_TRUE(t.dialogues.popUps.empty());
}

TEST_F(PaneEvents, PasteIsOfferedWhileTheClipboardHoldsText)
{
    Text_MouseDown(editor, editor.joystick, mouseButton::right);
    EXPECT_FALSE(menus.mnuRHMPaste.Enabled);
    t.clipboard.content.text = "x";
    Text_MouseDown(editor, editor.joystick, mouseButton::right);
    EXPECT_TRUE(menus.mnuRHMPaste.Enabled);
}

TEST_F(PaneEvents, ProtectAndDownloadFollowTheirCommands)
{
    menus.mnuSendToJoystick.handler = nullptr;
    menus.mnuPreferencesProtectMacroFile.Enabled = false;
    Text_MouseDown(editor, editor.joystick, mouseButton::right);
    EXPECT_FALSE(menus.mnuRHMProtect.Enabled);
    EXPECT_FALSE(menus.mnuRHMProtect.Checked);
    EXPECT_FALSE(menus.mnuRHMDownload.Enabled);

    int downloads = 0;
    menus.mnuSendToJoystick.handler = [&] { ++downloads; };
    menus.mnuSendToJoystick.Enabled = true;
    menus.mnuPreferencesProtectMacroFile.Enabled = true;
    menus.mnuRHMProtect.Click();
    Text_MouseDown(editor, editor.joystick, mouseButton::right);
    EXPECT_TRUE(menus.mnuRHMProtect.Enabled);
    EXPECT_TRUE(menus.mnuRHMProtect.Checked);
    EXPECT_TRUE(editor.MacroText.Locked);
    EXPECT_TRUE(menus.mnuRHMDownload.Enabled);
    menus.mnuRHMDownload.Click();
    EXPECT_EQ(downloads, 1);
    menus.mnuSendToJoystick.Enabled = false;
    Text_MouseDown(editor, editor.joystick, mouseButton::right);
    EXPECT_FALSE(menus.mnuRHMDownload.Enabled);
}

TEST_F(PaneEvents, ItemsOfThePopUpMenuDoWhatTheEditMenuDoes)
{
    select(0, 3);
    menus.mnuRHMCut.Click();
    EXPECT_EQ(joystick.Text(), "\r\ntwo\r\nthree");
    menus.mnuRHMPaste.Click();
    EXPECT_EQ(joystick.Text(), "one\r\ntwo\r\nthree");
    select(5, 3);
    menus.mnuRHMCopy.Click();
    EXPECT_EQ(t.clipboard.content.text, "two");
    menus.mnuRHMDelete.Click();
    EXPECT_EQ(joystick.Text(), "one\r\n\r\nthree");
}

} // namespace
} // namespace tarvex
