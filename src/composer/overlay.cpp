#include "composer/overlay.h"

#include "platform/windows1252.h"
#include "shell/composer_extra.h"
#include "shell/extras.h"

#include <algorithm>

namespace tarvex {

namespace {

/// A name stands in a statement between blanks or line ends.
bool namesMacro(std::string_view statement, std::string_view name)
{
    const auto parts = [](char letter) { return letter == ' ' || letter == '\t' || letter == '\r' || letter == '\n'; };
    for (std::size_t at = statement.find(name); at != std::string_view::npos; at = statement.find(name, at + 1)) {
        const std::size_t behind = at + name.size();
        const bool begins = at == 0 || parts(statement[at - 1]);
        if (begins && (behind == statement.size() || parts(statement[behind]))) return true;
    }
    return false;
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

/// The definitions of the macros that a statement names, each on a line of its own.
std::string macroKeys(const std::vector<std::string>& lines, std::string_view statement)
{
    std::string keys;
    for (const std::string& line : lines) {
        const std::size_t equals = line.find('=');
        if (equals == std::string::npos) continue;
        const std::string_view name = trimmed(std::string_view(line).substr(0, equals));
        if (!name.empty() && namesMacro(statement, name)) keys += "\n    " + utf8FromWindows1252(line);
    }
    return keys;
}

std::string withLineFeeds(std::string text)
{
    std::erase(text, '\r');
    return text;
}

} // namespace

void renewAssigned(InsertOptions& window)
{
    window.TimerAssigned.Enabled = false;
    std::vector<AssignedControl> controls;
    if (window.CheckShowAssigned.Value) {
        const PictureOf shown[] = {PictureOf::F22AndF16Stick, PictureOf::OlderStick, PictureOf::Tqs, window.WcsPicture};
        controls = assignedControls(shown, true, window.editor.JoystickText.Text());
    }
    if (controls == window.Assigned) return;
    window.Assigned = std::move(controls);
    window.AssignedChanged();
}

void readShowAssigned(InsertOptions& window)
{
    window.CheckShowAssigned.Value = window.editor.shared.extras.on(extraKey::showAssigned);
}

void CheckShowAssigned_Click(InsertOptions& window)
{
    const Steps step; // where the tick can't be written, it counts until the window comes to the front again
    step([&] { window.editor.shared.extras.set(extraKey::showAssigned, window.CheckShowAssigned.Value); });
    renewAssigned(window);
}

bool isAssigned(const InsertOptions& window, std::string_view id)
{
    return std::ranges::any_of(window.Assigned, [id](const AssignedControl& control) {
        return control.id == id && control.statement.has_value();
    });
}

std::string assignedText(const InsertOptions& window, std::string_view id)
{
    std::string text;
    for (const AssignedControl& control : window.Assigned) {
        if (control.id != id || !control.statement) continue;
        if (!text.empty()) text += '\n';
        text += withLineFeeds(utf8FromWindows1252(*control.statement));
        text += macroKeys(window.editor.macros.MacroFileLines, *control.statement);
    }
    return text;
}

void wireOverlay(InsertOptions& window)
{
    window.CheckShowAssigned.Caption = "Sho&w what is assigned";
    window.CheckShowAssigned.Click = [&window] { CheckShowAssigned_Click(window); };
    window.TimerAssigned.Tick = [&window] { renewAssigned(window); };
    // Only noted here: the text is read once the user pauses.
    window.connections.push_back(window.editor.JoystickText.edited.connect([&window](Pane::Edit) {
        if (window.form.Visible && window.CheckShowAssigned.Value) window.TimerAssigned.Enabled = true;
    }));
}

} // namespace tarvex
