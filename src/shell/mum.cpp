#include "shell/mum.h"

#include "shell/toolbar_buttons.h"

namespace tarvex {

namespace {

struct PanelDesign {
    int number;
    const char* text;
    const char* toolTip;
};

/// The toolkit's own panels write their texts themselves.
constexpr PanelDesign panels[] = {
    {panel::progress, "Welcome!", ""},
    {panel::savedState, "", "Currently active file saved state"},
    {panel::line, "Line no:", "Current insertion point in the joystick file"},
    {panel::capsLock, "CAPS", "State of the Caps Lock key"},
    {panel::insert, "", "State of the Insert key"},
    {panel::numLock, "", "State of the Num Lock key"},
    {panel::time, "", "The current time"},
    {panel::macroFile, "No macrofile analysed", "The macros in the macros list are from this file"},
};

} // namespace

Mum::Mum()
{
    for (const PanelDesign& design : panels) {
        tarvex::StatusBar::Panel& panel = StatusBar.Panels(design.number);
        panel.Text = design.text;
        panel.ToolTipText = design.toolTip;
    }
    // The bar was drawn with one tip.
    Toolbar1.Buttons(toolbarButton::preferences).ToolTipText =
        std::string(toolbarButtonAt(toolbarButton::preferences)->tip);
}

bool showsCompileResult(const Mum& mum)
{
    return mum.StatusBar.Panels(panel::progress).Text.get().starts_with("Compile");
}

bool showsDefinition(const Mum& mum)
{
    return mum.StatusBar.Panels(panel::progress).Text.get().find('=') != std::string::npos;
}

bool showsUnsavedChanges(const Mum& mum)
{
    constexpr int modified = 1;
    return mum.StatusBar.Panels(panel::savedState).Picture == savedStatePicture(modified);
}

} // namespace tarvex
