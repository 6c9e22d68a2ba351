#include "preferences/extras_page.h"

#include "platform/machine_settings.h"
#include "platform/windows1252.h"
#include "preferences/extras_drives.h"
#include "preferences/extras_handling.h"
#include "shell/extras.h"

#include <string_view>

namespace tarvex {

namespace {

// ---- Wine and DOSBox ------------------------------------------------------------------------------------------------

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

// ---- appearance -----------------------------------------------------------------------------------------------------

std::array<MenuItem*, 3> appearanceItems(Menus& menus)
{
    return {&menus.mnuAppearanceSystem, &menus.mnuAppearanceLight, &menus.mnuAppearanceDark};
}

void showAppearance(ExtrasPage& page)
{
    const auto items = appearanceItems(page.editor.menus);
    for (std::size_t i = 0; i < items.size(); ++i) page.Appearance[i].Value = items[i]->Checked.get();
}

} // namespace

ExtrasPage::ExtrasPage(Editor& theEditor) : editor(theEditor)
{
    m_rowChanged = wireDrives(*this);
    constexpr const char* testCaptions[] = {"&Test", "T&est"};
    for (std::size_t i = 0; i < Runners.size(); ++i) {
        RunnerRow& row = Runners[i];
        row.which = i == 0 ? Runner::Wine : Runner::DosBox;
        row.Browse.Caption = "Browse";
        row.Browse.handler = [this, &row] { RunnerBrowse_Click(*this, row); };
        row.Test.Caption = testCaptions[i];
        row.Test.handler = [this, &row] { RunnerTest_Click(*this, row); };
    }
    constexpr const char* themeCaptions[] = {"As the deskto&p", "L&ight", "Dar&k"};
    const auto items = appearanceItems(editor.menus);
    for (std::size_t i = 0; i < Appearance.size(); ++i) {
        Appearance[i].Caption = themeCaptions[i];
        Appearance[i].Click = [item = items[i]] { item->Click(); };
        m_appearanceChanged[i] = items[i]->Checked.changed.connect([this] { showAppearance(*this); });
    }
    OpenFolder.Caption = "Ope&n folder";
    OpenFolder.handler = [this] {
        handle(*this, "PREFS OpenFolder_Click", [this] {
            if (!machineOf(*this).showFolder(SettingsFolder.Text))
                say(*this, "I couldn't open a window on " + SettingsFolder.Text.get() + ".");
        });
    };
    Import.Caption = "Impo&rt...";
    for (const ExtraTick& tick : extraTicks()) Ticks.emplace_back().Caption = tick.caption;
}

void loadExtras(ExtrasPage& page)
{
    Shared& shared = page.editor.shared;
    loadDrives(page);
    for (ExtrasPage::RunnerRow& row : page.Runners) loadRunner(page, row);
    showAppearance(page);
    page.SettingsFolder.Text = machineOf(page).nativePath(page.editor.platform.programDirectory);
    if (page.unwritten) return;
    for (std::size_t i = 0; i < page.Ticks.size(); ++i) page.Ticks[i].Value = shared.extras.on(extraTicks()[i].key);
}

void takeExtras(ExtrasPage& page)
{
    Shared& shared = page.editor.shared;
    const Steps step(shared.errors, "PREFS takeExtras");
    MachineSettings settings(shared.platformIni);
    for (const ExtrasPage::RunnerRow& row : page.Runners)
        step([&] { settings.setRunner(row.which, trimmed(row.Path.Text.get())); });
    for (std::size_t i = 0; i < page.Ticks.size(); ++i)
        step([&] { shared.extras.set(extraTicks()[i].key, page.Ticks[i].Value); });
    takeDrives(page, step);
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
