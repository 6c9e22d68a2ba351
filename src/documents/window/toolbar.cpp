#include "documents/window/toolbar.h"

#include "documents/window/colour_selector.h"

namespace tarvex {

namespace {

constexpr float statusBarLeftPart = 4020; // twips
constexpr float belowPicture = 250;       // twips
constexpr std::string_view welcome = "Welcome to Tarvex Freeware";
constexpr std::string_view greeting = "Hi there buddy, I'm the status bar";

/// The first button that holds the point, its edges left out; the bar's count + 1 when none does.
int buttonAt(ToolBar& bar, float x, float y)
{
    int number = 1;
    for (; number <= bar.Count(); ++number) {
        const Placement& place = bar.Buttons(number).Place;
        const auto inside = [](float at, int start, int length) {
            return at > static_cast<float>(start) && at < static_cast<float>(start + length);
        };
        if (inside(x, place.Left, place.Width) && inside(y, place.Top, place.Height)) break;
    }
    return number;
}

/// A compile result stays up until another message replaces it, and everything does when help texts aren't wanted.
bool panelIsFree(const Editor& editor)
{
    return editor.shared.settings.ButtonsOnStatusBar != 0 && !showsCompileResult(editor.mum);
}

} // namespace

MenuItem* toolbarCommand(Editor& editor, int button)
{
    const ToolbarButton* slot = toolbarButtonAt(button);
    if (slot == nullptr) return nullptr;
    if (toolbarMeansBoth(*slot, editor.shared.settings)) return &(editor.menus.*slot->both.command);
    const bool macro = editor.selected().tab == editor.macro.tab && slot->macro != nullptr;
    MenuItem Menus::*const command = macro ? slot->macro : slot->joystick;
    return command != nullptr ? &(editor.menus.*command) : nullptr;
}

bool toolbarOffers(Editor& editor, int button)
{
    const ToolbarButton* slot = toolbarButtonAt(button);
    if (slot == nullptr || !editor.mum.Toolbar1.Buttons(button).Enabled) return false;
    if (button == toolbarButton::picture) return true;
    const MenuItem* command = toolbarCommand(editor, button);
    return command != nullptr && command->handler && (command->Enabled || slot->alwaysEnabled);
}

void Toolbar1_ButtonClick(Editor& editor, int button)
{
    const Steps step(editor.shared.errors, "MUM Toolbar1_ButtonClick");
    if (const MenuItem* command = toolbarCommand(editor, button)) step([&] { command->Click(); });
}

void Toolbar1_MouseMove(Editor& editor, int /*button*/, int /*shift*/, float x, float y)
{
    if (!panelIsFree(editor)) return;
    const ToolbarButton* slot = toolbarButtonAt(buttonAt(editor.mum.Toolbar1, x, y));
    if (slot == nullptr || slot->isSeparator()) return editor.status(std::string(welcome));
    editor.status(
        std::string(toolbarMeansBoth(*slot, editor.shared.settings) ? slot->both.hoverText : slot->hoverText));
}

void StatusBar_MouseMove(Editor& editor, float x)
{
    if (!panelIsFree(editor)) return;
    const bool greeted = editor.mum.StatusBar.Panels(panel::progress).Text == std::string(greeting);
    if (x < statusBarLeftPart) {
        editor.status(std::string(greeting));
    } else if (greeted) {
        editor.status("What say you and I give up on this programming lark and go and get a beer?");
    }
}

void Picture1_MouseMove(Editor& editor)
{
    if (panelIsFree(editor)) editor.status(std::string(toolbarButtonAt(toolbarButton::picture)->hoverText));
}

void Picture1_Click(Editor& editor)
{
    editor.mum.Picture1PlaceWanted();
    const Placement& picture = editor.mum.Picture1Place;
    Form& form = editor.ColourSelector.form;
    form.Left = static_cast<float>(picture.Left * twipsPerPixel);
    form.Top = static_cast<float>((picture.Top + picture.Height) * twipsPerPixel) + belowPicture;
    showColourSelector(editor, ColourTarget::Pane);
}

} // namespace tarvex
