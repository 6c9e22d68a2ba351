#include "preferences/extras_runners.h"

#include "platform/machine_settings.h"
#include "platform/windows1252.h"
#include "preferences/extras_handling.h"

#include <string_view>

namespace tarvex {

namespace {

std::string firstLine(std::string_view text)
{
    const std::string line = trimmed(text);
    return line.substr(0, line.find_first_of("\r\n"));
}

std::string test(ExtrasPage& page, const ExtrasPage::RunnerRow& row)
{
    const std::string name = nameOf(row.which);
    const std::string written = trimmed(row.Path.Text.get());
    const std::string path = written.empty() ? machineOf(page).findRunner(row.which) : written;
    if (path.empty()) return "I haven't found " + name + ". Install it, or choose where it is.";
    if (!path.starts_with('/')) return "I need the full path, from \"/\" on.";
    try {
        return verdict(row.which, machineOf(page).askForVersion(path));
    } catch (const RuntimeError& error) {
        return "I couldn't run " + path + ": " + error.what();
    }
}

void loadRunner(ExtrasPage& page, ExtrasPage::RunnerRow& row)
{
    row.Found = machineOf(page).findRunner(row.which);
    if (!page.unwritten) row.Path.Text = MachineSettings(page.editor.shared.platformIni).runner(row.which);
    row.Answer.Caption = "";
}

} // namespace

void wireRunners(ExtrasPage& page)
{
    constexpr const char* testCaptions[] = {"&Test", "T&est"};
    for (std::size_t i = 0; i < page.Runners.size(); ++i) {
        ExtrasPage::RunnerRow& row = page.Runners[i];
        row.which = i == 0 ? Runner::Wine : Runner::DosBox;
        row.Browse.Caption = "Browse";
        row.Browse.handler = [&page, &row] { RunnerBrowse_Click(page, row); };
        row.Test.Caption = testCaptions[i];
        row.Test.handler = [&page, &row] { RunnerTest_Click(page, row); };
    }
}

void loadRunners(ExtrasPage& page)
{
    for (ExtrasPage::RunnerRow& row : page.Runners) loadRunner(page, row);
}

void takeRunners(ExtrasPage& page, const Steps& step)
{
    MachineSettings settings(page.editor.shared.platformIni);
    for (const ExtrasPage::RunnerRow& row : page.Runners)
        step([&] { settings.setRunner(row.which, trimmed(row.Path.Text.get())); });
}

void RunnerBrowse_Click(ExtrasPage& page, ExtrasPage::RunnerRow& row)
{
    handle(page, "PREFS RunnerBrowse_Click", [&] {
        const std::string title = std::string("Locate ") + nameOf(row.which);
        const auto path = page.editor.platform.dialogues.openFile({.title = title, .filter = "All files (*.*)|*.*"});
        if (path) row.Path.Text = machineOf(page).nativePath(*path);
    });
}

void RunnerTest_Click(ExtrasPage& page, ExtrasPage::RunnerRow& row)
{
    handle(page, "PREFS RunnerTest_Click", [&] {
        page.editor.platform.desktop.showHourglass(true);
        row.Answer.Caption = test(page, row);
        page.editor.platform.desktop.showHourglass(false);
    });
}

std::string verdict(Runner which, const ProgramOutput& output)
{
    const std::string name = nameOf(which);
    const std::string line = firstLine(output.text);
    if (!output.ended) return "It didn't say its version for 10 seconds, so I've stopped it.";
    if (line.empty()) return "It ran, but didn't say which version it is.";
    if (lowerUtf8(output.text).find(lowerUtf8(name)) == std::string::npos)
        return "That doesn't look like " + name + ". It says: " + line;
    return line;
}

} // namespace tarvex
