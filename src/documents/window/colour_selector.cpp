#include "documents/window/colour_selector.h"

#include "documents/editing/undo.h"
#include "documents/pair/document_status.h"
#include "platform/key_codes.h"

namespace tarvex {

namespace {

void colourPane(Editor& editor, Colour colour)
{
    Side& side = editor.selected();
    const std::int16_t changedBefore = side.Changed;
    if (!side.pane.Locked) {
        editor.mum.Picture1 = colour;
        writeAsOneLevel(side, [&] { side.pane.setSelColor(colour); });
    }
    side.Changed = changedBefore;
    UpdateSavedIcon(editor);
    side.pane.SetFocus();
}

} // namespace

void wireColourSelector(Editor& editor)
{
    ColourSelector& selector = editor.ColourSelector;
    selector.form.Load = [&editor] { ColourSelector_Activate(editor); };
    selector.form.KeyDown = [&editor](int key, int) {
        ColourSelector_KeyDown(editor, key);
        return key == keyCode::escape;
    };
    for (std::size_t index = 0; index < ColourSelector::count; ++index)
        selector.Command1[index].handler = [&editor, index] { ColourSelector_Command1_Click(editor, index); };
    selector.form.join(editor.mum.toolWindows);
}

void showColourSelector(Editor& editor, ColourTarget target)
{
    editor.ColourSelector.target = target;
    editor.ColourSelector.form.open();
}

void ColourSelector_Activate(Editor& editor)
{
    for (std::size_t index = 0; index < ColourSelector::count; ++index) {
        Colour Settings::*const colour = colourChoices()[index].colour;
        if (colour != nullptr) editor.ColourSelector.Label1[index] = editor.shared.settings.*colour;
    }
}

void ColourSelector_Command1_Click(Editor& editor, std::size_t index)
{
    const Steps step;
    ColourSelector& selector = editor.ColourSelector;
    step([&] {
        const Colour colour = selector.Label1.at(index);
        selector.form.hide(); // the keyboard goes back to the text
        selector.target == ColourTarget::Pane ? colourPane(editor, colour) : selector.colourTemplate(colour);
    });
}

void ColourSelector_KeyDown(Editor& editor, int key)
{
    if (key == keyCode::escape) editor.ColourSelector.form.hide();
}

void ColourSelector_LostFocus(Editor& editor) { editor.ColourSelector.form.hide(); }

} // namespace tarvex
