#include "documents/window/menu_choices.h"

namespace tarvex {

void toggle(MenuItem& item, std::int16_t& setting)
{
    item.Checked = !item.Checked;
    setting = item.Checked ? 1 : 0;
}

void mnuJoyPopUpSingleFile_Click(Editor& editor)
{
    toggle(editor.menus.mnuJoyPopUpSingleFile, editor.shared.settings.OpenSingleFileOnly);
}

void mnuMacrosSaveOptions_Click(Editor& editor, int index)
{
    if (index == 1)
        toggle(editor.menus.mnuMacrosSaveOptions1, editor.shared.settings.MacroSaveUpdateMacros);
    else
        toggle(editor.menus.mnuMacrosSaveOptions2, editor.shared.settings.MacroSaveIdentifyJF);
}

void mnuInsertWithColour_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "mnuInsertWithColour_Click");
    toggle(editor.menus.mnuInsertWithColour, editor.shared.settings.InsertWithColour);
    step([&] { editor.shared.store.write(Access::mnuInsertWithColour_Click, "mnuInsertWithColour_Click"); });
}

} // namespace tarvex
