#include "documents/editing/line_highlight.h"
#include "documents/editing/pane_events.h"
#include "documents/files/auto_save.h"
#include "documents/pair/editor_layout.h"
#include "documents/pair/tabs.h"
#include "documents/window/editor_window.h"
#include "documents/window/hardware_changes.h"
#include "documents/window/toolbar.h"
#include "language/commands/align_slashes.h"
#include "language/commands/button_definition.h"
#include "language/commands/identify_macros.h"
#include "language/commands/macro_filter.h"
#include "language/commands/macro_list_events.h"
#include "language/commands/rem_block.h"
#include "language/commands/slash_buttons.h"
#include "language/commands/text_transfer.h"
#include "platform/input.h"
#include "program/effects/acts.h"

#include <algorithm>

namespace tarvex {

namespace {

void pressDelete(Pane& pane)
{
    pane.EditComing();
    pane.userEdit(pane.SelStart(), std::max<std::int64_t>(pane.SelLength(), 1), "");
}

} // namespace

const std::vector<Act>& keyActs()
{
    static const std::vector<Act> all{
        {"key x", [](TestProgram& t, Editor& e) { t.pressKeys(e.selected().pane, "x"); }},
        {"keys x blank y", [](TestProgram& t, Editor& e) { t.pressKeys(e.selected().pane, "x y"); }},
        {"key Return", [](TestProgram& t, Editor& e) { t.pressKeys(e.selected().pane, "\r"); }},
        {"key Backspace", [](TestProgram& t, Editor& e) { t.pressKeys(e.selected().pane, "\b"); }},
        {"key Delete", [](TestProgram&, Editor& e) { pressDelete(e.selected().pane); }},
        {"key F9", [](TestProgram&, Editor& e) { Text_KeyDown(e, e.selected(), "F9"); }},
        {"key up", [](TestProgram&, Editor& e) { Text_KeyUp(e, e.selected()); }},
        {"click", [](TestProgram&, Editor& e) { Text_Click(e, e.selected()); }},
        {"left button", [](TestProgram&, Editor& e) { Text_MouseDown(e, e.selected(), mouseButton::left); }},
        {"right button", [](TestProgram&, Editor& e) { Text_MouseDown(e, e.selected(), mouseButton::right); }},
        {"middle button", [](TestProgram&, Editor& e) { Text_MouseDown(e, e.selected(), mouseButton::middle); }},
        {"the other pane", [](TestProgram&, Editor& e) { Text_GotFocus(e, e.other(e.selected())); }},
        {"tab 1", [](TestProgram&, Editor& e) { e.TabStrip1.Select(1); }},
        {"tab 2", [](TestProgram&, Editor& e) { e.TabStrip1.Select(2); }},
        {"mouse over button 3", [](TestProgram&, Editor& e) { Toolbar1_MouseMove(e, 3, 0, 10, 10); }},
        {"mouse over the status bar", [](TestProgram&, Editor& e) { StatusBar_MouseMove(e, 100); }},
        {"mouse over the colour", [](TestProgram&, Editor& e) { Picture1_MouseMove(e); }},
        {"the colour", [](TestProgram&, Editor& e) { Picture1_Click(e); }},
        {"slash button 0", [](TestProgram&, Editor& e) { Command1_Click(e, 0); }},
        {"slash button 11", [](TestProgram&, Editor& e) { Command1_Click(e, 11); }},
        {"mouse over slash button 5", [](TestProgram&, Editor& e) { Command1_MouseMove(e, 5); }},
        {"headings", [](TestProgram&, Editor& e) { Combo1_GotFocus(e); }},
        {"heading All",
         [](TestProgram&, Editor& e) {
             e.FrameMacros.Combo1.Text = "All";
             Combo1_Click(e);
         }},
        {"heading Guns",
         [](TestProgram&, Editor& e) {
             e.FrameMacros.Combo1.Text = "Guns";
             Combo1_Click(e);
         }},
        {"double click on a macro", [](TestProgram&, Editor& e) { List1_DblClick(e, 0); }},
        {"key in the list", [](TestProgram&, Editor& e) { List1_KeyDown(e, 0, shiftKey::none); }},
        {"Shift in the list", [](TestProgram&, Editor& e) { List1_KeyUp(e, 0, shiftKey::shift); }},
        {"left button in the list",
         [](TestProgram&, Editor& e) { List1_MouseDown(e, 0, mouseButton::left, shiftKey::none); }},
        {"right button in the list",
         [](TestProgram&, Editor& e) { List1_MouseDown(e, 0, mouseButton::right, shiftKey::none); }},
        {"drag over the list",
         [](TestProgram&, Editor& e) { List1_MouseMove(e, 0, mouseButton::left, shiftKey::shift, 10); }},
        {"filter", [](TestProgram&, Editor& e) { writeIntoFilter(e, "ge"); }},
        {"filter closed",
         [](TestProgram&, Editor& e) {
             writeIntoFilter(e, "ge");
             closeFilter(e);
         }},
        {"minute", [](TestProgram&, Editor& e) { e.Timer1.Tick(); }},
        {"automatic save", [](TestProgram&, Editor& e) { AutoSaveFile(e); }},
        {"flash",
         [](TestProgram&, Editor& e) {
             for (int i = 0; i < 2; ++i) e.TimerBlinkLine.Tick();
         }},
        {"activation", [](TestProgram&, Editor& e) { Form_Activate(e); }},
        {"smaller window",
         [](TestProgram&, Editor& e) {
             e.ScaleWidth = 500;
             Form_Resize(e);
         }},
        {"question before the exit", [](TestProgram&, Editor& e) { Form_QueryUnload(e); }},
        {"exit", [](TestProgram& t, Editor&) { t.program().exit(); }},
        {"other hardware",
         [](TestProgram& t, Editor& e) {
             t.settings().JoystickExtension = "f22";
             t.settings().MacroExtension = "m22";
             HardwareHasChanged(e);
         }},
        {"error line 2", [](TestProgram&, Editor& e) { HighlightErrorLine(e, 2); }},
        {"error line 99", [](TestProgram&, Editor& e) { HighlightErrorLine(e, 99); }},
        {"alignment for layouts", [](TestProgram&, Editor& e) { AlignForLayouts(e); }},
        {"text of Safein", [](TestProgram&, Editor& e) { SafeinTransferText(e, "RAW (#1C) fire"); }},
        {"macros of a wizard",
         [](TestProgram&, Editor& e) {
             e.TempRichTextBox.setText("jump = j\r\n");
             MacroTransferText(e);
         }},
        {"macros used, if any", [](TestProgram&, Editor& e) { IdentifyMacrosIfAny(e); }},
        {"statement of a button", [](TestProgram&, Editor& e) { ExtractButtonDefinition(e, "BTN S2"); }},
        {"statement that isn't there", [](TestProgram&, Editor& e) { ExtractButtonDefinition(e, "BTN H4L"); }},
        {"Rem in front of the line", [](TestProgram&, Editor& e) { RemBlockCommon(e); }},
        {"another file", [](TestProgram& t, Editor&) { t.openBoth(su); }},
        {"undo twice and redo",
         [](TestProgram& t, Editor& e) {
             t.pressKeys(e.selected().pane, "a b");
             t.menus().mnuEditUndo.Click();
             t.menus().mnuEditUndo.Click();
             t.menus().mnuEditRedo.Click();
         }},
        {"key after an undo",
         [](TestProgram& t, Editor& e) {
             t.pressKeys(e.selected().pane, "a b");
             t.menus().mnuEditUndo.Click();
             t.pressKeys(e.selected().pane, "c");
         }},
        {"undo to the saved text",
         [](TestProgram& t, Editor& e) {
             t.menus().mnuFileSave.Click();
             t.pressKeys(e.selected().pane, "a");
             t.menus().mnuEditUndo.Click();
         }},
        {"caret on another line",
         [](TestProgram&, Editor& e) {
             Text_KeyUp(e, e.selected());
             e.selected().pane.setSelStart(e.selected().pane.lineStart(e.selected().pane.lineCount() - 1));
             Text_KeyUp(e, e.selected());
         }},
        {"characters selected by the mouse",
         [](TestProgram&, Editor& e) {
             e.selected().pane.setSelStart(1);
             e.selected().pane.setSelLength(5);
             Text_Click(e, e.selected());
         }},
        {"key F1", [](TestProgram&, Editor& e) { Text_KeyDown(e, e.selected(), "F1"); }},
        {"key Esc", [](TestProgram&, Editor& e) { Text_KeyDown(e, e.selected(), "Esc"); }},
        {"key Ctrl+Tab", [](TestProgram&, Editor& e) { Text_KeyDown(e, e.selected(), "Ctrl+Tab"); }},
        {"key Ctrl+Z", [](TestProgram&, Editor& e) { Text_KeyDown(e, e.selected(), "Ctrl+Z"); }},
        {"a line coloured while it is written",
         [](TestProgram& t, Editor& e) {
             t.program().shared.extras.set(extraKey::colourAsTyped, true);
             t.pressKeys(e.selected().pane, "\rBTN S4 /P x");
             e.TimerColour.Tick();
         }},
        {"all text deleted",
         [](TestProgram&, Editor& e) {
             e.selected().pane.EditComing();
             e.selected().pane.userEdit(0, static_cast<std::int64_t>(e.selected().pane.TextLength()), "");
         }},
        {"edge of the macro frame dragged",
         [](TestProgram&, Editor& e) {
             FrameMacros_MouseMove(e, false, 184 * 15.0F, true);
             FrameMacros_MouseMove(e, true, 299 * 15.0F, false);
             FrameMacros_MouseMove(e, false, 299 * 15.0F, true);
         }},
        {"font of the panes changed",
         [](TestProgram& t, Editor& e) {
             t.settings().TextFontName = "Terminal";
             t.settings().TextFontSize = 15;
             t.program().shared.FontChanged = 1;
             Form_Activate(e);
         }},
    };
    return all;
}

} // namespace tarvex
