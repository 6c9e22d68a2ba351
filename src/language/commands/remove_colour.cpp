#include "language/commands/remove_colour.h"

#include "documents/pair/loading.h"
#include "language/commands/side_caret.h"

namespace tarvex {

namespace {

constexpr Colour black = 0;

void removeColour(Editor& editor, Side& side, std::string_view tag)
{
    const Steps step(editor.shared.errors, tag);
    Pane& pane = side.pane;
    editor.status("Removing colour highlighting from " + editor.tabCaption(side) + ". Please wait ...");
    const Loading loading(editor.shared);
    const auto caret = side.Caret;
    step([&] {
        pane.setSelStart(0);
        pane.setSelLength(static_cast<std::int64_t>(pane.TextLength()));
        pane.setSelColor(black);
        pane.setSelStart(0);
        pane.setSelLength(0);
        pane.Refresh();
    });
    step([&] { putCaret(side, caret); });
    editor.status("Done");
}

} // namespace

void mnuRemoveColourJoystick_Click(Editor& editor) { removeColour(editor, editor.joystick, "mnuRemoveColourJoystick"); }
void mnuRemoveColourMacro_Click(Editor& editor) { removeColour(editor, editor.macro, "mnuRemoveColourMacro"); }

void mnuRemoveColourSelectedText_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "mnuRemoveColourSelectedText");
    Side& side = editor.selected();
    const std::int16_t before = side.Changed;
    const Loading loading(editor.shared);
    step([&] {
        side.pane.setSelColor(black);
        side.pane.Refresh();
    });
    side.Changed = before;
    editor.status("Done");
}

void mnuRHMColoursRemove_Click(Editor& editor)
{
    const Side& side = editor.selected();
    MenuItem& command =
        side.tab == editor.joystick.tab ? editor.menus.mnuRemoveColourJoystick : editor.menus.mnuRemoveColourMacro;
    command.Click();
}

} // namespace tarvex
