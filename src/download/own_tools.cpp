#include "download/own_tools.h"

namespace tarvex {

namespace {

/// A window that a command shows.
struct OwnTool {
    MenuItem Menus::*item;
    const char* form;
};

constexpr OwnTool tools[] = {
    {&Menus::mnuAppsImageViewer, "ViewImage"},
    {&Menus::mnuSendToKeyTest, "KeyTestForm"},
};

constexpr const char* joystickAnalyser = "JoyPlot";
constexpr const char* controllerAnalyser = "TCAform";

} // namespace

void wireOwnTools(Editor& editor)
{
    const ToolWindows& windows = editor.mum.toolWindows;
    for (const OwnTool& tool : tools) {
        if (windows.canShow(tool.form))
            (editor.menus.*tool.item).handler = [&windows, &tool] { windows.show(tool.form); };
    }
    if (windows.canShow(joystickAnalyser) && windows.canShow(controllerAnalyser))
        editor.menus.mnuAppsJoyAnalyser.handler = [&editor] { mnuAppsJoyAnalyser_Click(editor); };
}

void mnuAppsJoyAnalyser_Click(Editor& editor)
{
    editor.mum.toolWindows.show(editor.shared.settings.UseTCA != 0 ? controllerAnalyser : joystickAnalyser);
}

} // namespace tarvex
