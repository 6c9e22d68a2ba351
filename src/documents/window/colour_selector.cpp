#include "documents/window/colour_selector.h"

#include "documents/editing/undo.h"
#include "documents/pair/document_status.h"

namespace tarvex {

namespace {

constexpr int escapeKey = 27;

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

void showColourSelector(Editor& editor, ColourTarget target)
{
    editor.ColourSelector.target = target;
    ColourSelector_Activate(editor);
    editor.ColourSelector.form.Visible = true;
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
        selector.form.Visible = false; // the keyboard goes back to the text
        selector.target == ColourTarget::Pane ? colourPane(editor, colour) : selector.colourTemplate(colour);
    });
}

void ColourSelector_KeyDown(Editor& editor, int key)
{
    if (key == escapeKey) editor.ColourSelector.form.Visible = false;
}

void ColourSelector_LostFocus(Editor& editor) { editor.ColourSelector.form.Visible = false; }

} // namespace tarvex
