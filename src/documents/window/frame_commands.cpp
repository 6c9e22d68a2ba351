#include "documents/window/frame_commands.h"

#include "documents/editing/clipboard_commands.h"
#include "documents/window/colour_selector.h"
#include "documents/window/toolbar.h"
#include "shell/toolbar_buttons.h"
#include "shell/toolbar_tips.h"

namespace tarvex {

void UpdateEditorTooltips(Editor& editor)
{
    const bool on = editor.shared.settings.OKtoShowToolTips == 1;
    for (CheckListBox& list : editor.FrameMacros.List1)
        list.ToolTipText = on ? "Double click macro to insert into Joystick file, or use drag and drop" : "";
}

void showCalibration(Editor& editor)
{
    const bool shown = editor.shared.settings.DisableCalibrateMenu != 1;
    editor.menus.mnuAppsProPanel.Visible = shown;
    editor.mum.Toolbar1.Buttons(toolbarButton::calibrate).Visible = shown;
}

void wireFrame(Editor& editor)
{
    Operations& operations = editor.operations;
    Mum& mum = editor.mum;
    const Settings& settings = editor.shared.settings;
    operations.UpdateTooltips = [&mum, &settings] { UpdateTooltips(mum, settings); };
    operations.ShowExtraButtons = [&mum, &settings] { ShowExtraButtons(mum, settings); };
    operations.UpdateToolBarOpenSaveTooltips = [&mum, &settings] { UpdateToolBarOpenSaveTooltips(mum, settings); };
    operations.UpdateEditorTooltips = [&editor] { UpdateEditorTooltips(editor); };
    operations.UpdateCCPButtons = [&editor] { UpdateCCPButtons(editor); };
    operations.PaintGradient = [&mum] { mum.Gradient = true; };
    operations.ReleaseGradient = [&mum] { mum.Gradient = false; };
    operations.UnloadForm = [&mum](const std::string& name) { mum.toolWindows.unload(name); };

    editor.menus.mnuViewTextColour.handler = [&editor] { Picture1_Click(editor); };
    wireColourSelector(editor);
}

} // namespace tarvex
