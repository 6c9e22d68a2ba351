#include "testers/numbers.h"

#include "platform/joystick_axes.h"
#include "testers/joystick_choice.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tarvex {

namespace {

constexpr std::int64_t refreshMicroseconds = 250'000;

template <typename... Values> std::string format(const char* form, Values... values)
{
    char text[96];
    std::snprintf(text, sizeof text, form, values...);
    return text;
}

/// A number with its sign and so many decimals; what is nothing then has no minus.
std::string withSign(double value, int decimals)
{
    const double factor = std::pow(10, decimals);
    return format("%+.*f", decimals, std::round(value * factor) / factor + 0.0);
}

double percentOfRange(double units) { return units / axisLast * 100; }

std::array<std::string, Numbers::columns.size()> cellsOf(const AxisNumbers& axis)
{
    const bool rests = axis.rest.microseconds >= shortestRest;
    const double offCentre = (axis.rest.position - axisCentre) / axisCentre * 100;
    const auto atRest = [rests](std::string text) { return rests ? text : std::string("-"); };
    return {std::to_string(axis.now),
            std::to_string(axis.minimum),
            std::to_string(axis.maximum),
            format("%.1f %%", percentOfRange(axis.maximum - axis.minimum)),
            atRest(format("%.0f", axis.rest.position)),
            atRest(withSign(offCentre, 1) + " %"),
            atRest(format("%.1f (%d)", axis.rest.deviation, axis.rest.peakToPeak)),
            std::to_string(axis.spikes),
            atRest(withSign(axis.drift, 0))};
}

std::string kernelText(const JoystickDevice& device)
{
    std::string text;
    for (const JoystickAxis& axis : device.axes) {
        if (axis.flat == 0 && axis.fuzz == 0) continue;
        text += text.empty() ? "The kernel's own filters: " : ", ";
        text += axis.name + " flat " + std::to_string(axis.flat) + " fuzz " + std::to_string(axis.fuzz);
    }
    return text.empty() ? text : text + " (of the device's units). Fuzz hides small tremors from these numbers.";
}

std::string deviceText(const JoystickDevice& device)
{
    return device.name + " (" + std::to_string(device.axes.size()) + " axes, " + std::to_string(device.buttons) +
           " buttons)";
}

JoystickChoice choiceOf(const std::vector<JoystickDevice>& devices, std::size_t index)
{
    JoystickChoice choice;
    choice.name = devices[index].name;
    choice.guid = devices[index].guid;
    choice.number = numberAmongAlike(devices, index);
    return choice;
}

/// Two devices of one name differ by their number.
std::vector<std::string> deviceTexts(const std::vector<JoystickDevice>& devices)
{
    std::vector<std::string> texts;
    for (const JoystickDevice& device : devices) {
        const std::string text = deviceText(device);
        std::string shown = text;
        for (int number = 2; std::ranges::find(texts, shown) != texts.end(); ++number)
            shown = text + " no. " + std::to_string(number);
        texts.push_back(shown);
    }
    return texts;
}

} // namespace

Numbers::Numbers(Editor& theEditor, Joystick& theJoystick) : editor(theEditor), joystick(theJoystick)
{
    SavePicture.Caption = "Save &picture...";
    SaveSamples.Caption = "Save &samples...";
    CopySummary.Caption = "&Copy summary";
    StartAgain.Caption = "Start &again";
    mnuNumbers.handler = [this] {
        unfold(!Visible);
        editor.shared.platformIni.writeString(joystickSection, "Numbers", Visible ? "1" : "0");
    };
    SavePicture.handler = [this] {
        saveFile("Save picture", "Pictures (*.png)|*.png", "png", [this] { return picture ? picture() : ""; });
    };
    SaveSamples.handler = [this] {
        saveFile("Save samples", "Comma-separated values (*.csv)|*.csv", "csv",
                 [this] { return samplesText(statistics); });
    };
    CopySummary.handler = [this] { editor.platform.clipboard.put({.text = summary(), .rtf = ""}); };
    StartAgain.handler = [this] {
        statistics.clear();
        m_refreshed = 0;
        refresh();
    };
    Device.Click = [this] {
        const std::vector<JoystickDevice> devices = joystick.devices();
        const std::vector<std::string> texts = deviceTexts(devices);
        const auto found = std::ranges::find(texts, Device.Text.get());
        if (found == texts.end()) return;
        choose(choiceOf(devices, static_cast<std::size_t>(found - texts.begin())));
    };
    for (std::size_t role = 0; role < Axis.size(); ++role)
        Axis[role].Click = [this, role] {
            const auto& items = Axis[role].Items.get();
            const auto at = std::ranges::find(items, Axis[role].Text.get()) - items.begin();
            const auto open = joystick.chosen();
            if (!open) return;
            JoystickChoice chosen = choiceOf(joystick.devices(), *open);
            chosen.axes = choice().axes;
            chosen.axes[role] = at == 0 ? axisByGuess : at == 1 ? noAxis : static_cast<int>(at) - 2;
            choose(chosen);
        };
    connections.push_back(joystick.devicesChanged.connect([this] { showDevices(); }));
}

JoystickChoice Numbers::choice() const { return readJoystickChoice(editor.shared.platformIni); }

void Numbers::choose(const JoystickChoice& chosen)
{
    writeJoystickChoice(editor.shared.platformIni, chosen);
    joystick.choose(chosen);
    statistics.clear(); // they were another device's
    m_refreshed = 0;
    showDevices();
    refresh();
}

void Numbers::restart()
{
    statistics.clear();
    m_refreshed = 0;
    unfold(editor.shared.platformIni.readInt(joystickSection, "Numbers", 0) != 0);
}

/// The texts come first: the panel unfolds at their height.
void Numbers::unfold(bool visible)
{
    if (visible) showAll();
    Visible = visible;
    mnuNumbers.Checked = visible;
}

void Numbers::refreshSometimes()
{
    const auto& samples = statistics.samples();
    if (samples.empty() || samples.back().microseconds - m_refreshed >= refreshMicroseconds) refresh();
}

void Numbers::refresh()
{
    if (Visible) showAll();
}

void Numbers::showAll()
{
    if (!statistics.samples().empty()) m_refreshed = statistics.samples().back().microseconds;
    JOYCAPS caps;
    joystick.joyGetDevCapsA(caps);
    showCells();
    Rate.Caption =
        format("%.0f reports a second, %zu so far. A spike is a jump over %d and back within %d ms.", statistics.rate(),
               statistics.reports(), spikeThreshold, static_cast<int>(spikeMicroseconds / 1000));
    Verdict.Caption = verdictOf(statistics, (caps.wCaps & joyCaps::hasZ) != 0, (caps.wCaps & joyCaps::hasR) != 0);
}

void Numbers::showCells()
{
    JOYCAPS caps;
    joystick.joyGetDevCapsA(caps);
    const bool isThere[] = {true, true, (caps.wCaps & joyCaps::hasZ) != 0, (caps.wCaps & joyCaps::hasR) != 0};
    for (std::size_t role = 0; role < rows.size(); ++role) {
        const bool isShown = isThere[role] && statistics.reports() > 0;
        const auto cells = isShown ? cellsOf(statistics.numbers(role)) : decltype(cellsOf({})){};
        for (std::size_t column = 0; column < cells.size(); ++column) Cells[role][column].Caption = cells[column];
    }
}

void Numbers::showDevices()
{
    const std::vector<JoystickDevice> devices = joystick.devices();
    const std::vector<std::string> texts = deviceTexts(devices);
    const auto index = joystick.chosen();
    Device.Items = texts;
    Device.Text = index ? texts[*index] : "";
    Kernel.Caption = index ? kernelText(devices[*index]) : "";
    if (!index) return;
    const JoystickDevice* open = &devices[*index];
    const JoystickChoice chosen = choice();
    const AxisMap guessed = guessAxes(*open);
    for (std::size_t role = 0; role < Axis.size(); ++role) {
        const int guess = guessed[role];
        std::vector<std::string> items = {
            guess < 0 ? "Automatic: none" : "Automatic: " + open->axes[static_cast<std::size_t>(guess)].name, "None"};
        for (const JoystickAxis& axis : open->axes) items.push_back(axis.name);
        const int wanted = chosen.axes[role];
        const bool isListed = wanted >= 0 && wanted + 2 < static_cast<int>(items.size());
        const std::size_t at = wanted == noAxis ? 1 : isListed ? static_cast<std::size_t>(wanted) + 2 : 0;
        Axis[role].Items = items;
        Axis[role].Text = items[at];
    }
}

std::string Numbers::summary()
{
    std::string text;
    if (const auto index = joystick.chosen()) text += deviceText(joystick.devices()[*index]) + "\n";
    text += Rate.Caption.get() + "\n" + Verdict.Caption.get() + "\n";
    if (!Kernel.Caption.get().empty()) text += Kernel.Caption.get() + "\n";
    for (std::size_t role = 0; role < rows.size(); ++role) {
        if (Cells[role][0].Caption.get().empty()) continue;
        text += std::string(rows[role]) + ":";
        for (std::size_t column = 0; column < columns.size(); ++column)
            text += std::string(column == 0 ? " " : ", ") + columns[column] + " " + Cells[role][column].Caption.get();
        text += "\n";
    }
    return text;
}

void Numbers::saveFile(const char* title, const char* filter, const char* extension,
                       const std::function<std::string()>& contents)
{
    const Steps step;
    const auto path =
        editor.platform.dialogues.saveFile({.title = title, .filter = filter, .defaultExtension = extension});
    if (!path) return;
    if (step([&] { editor.platform.files.write(*path, contents()); })) return;
    editor.platform.dialogues.show(
        {.title = "Ooops!", .text = "I couldn't write " + *path + ": " + step.whyNot(), .icon = BoxIcon::Exclamation});
}

std::string samplesText(const StickStatistics& statistics)
{
    std::string text = "microseconds,x,y,throttle,rudder,buttons\r\n";
    if (statistics.samples().empty()) return text;
    const std::int64_t first = statistics.samples().front().microseconds;
    for (const StickSample& sample : statistics.samples()) {
        text += std::to_string(sample.microseconds - first);
        for (const std::uint16_t axis : sample.axes) text += ',' + std::to_string(axis);
        text += ',' + std::to_string(sample.buttons) + "\r\n";
    }
    return text;
}

} // namespace tarvex
