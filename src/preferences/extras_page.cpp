#include "preferences/extras_page.h"

#include "platform/machine_settings.h"
#include "platform/windows1252.h"
#include "shell/extras.h"

#include <algorithm>
#include <string_view>

namespace tarvex {

namespace {

/// Without blanks around it.
std::string trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t start = std::min(text.find_first_not_of(blanks), text.size());
    return std::string(text.substr(start, text.find_last_not_of(blanks) + 1 - start));
}

template <typename Work> void handle(ExtrasPage& page, std::string_view tag, Work work)
{
    const Steps step(page.editor.shared.errors, tag);
    step(work);
}

Machine& machineOf(ExtrasPage& page) { return page.editor.platform.machine; }

void say(ExtrasPage& page, const std::string& text)
{
    page.editor.platform.dialogues.show(
        {.title = "Hmmm...let me think...", .text = text, .icon = BoxIcon::Exclamation});
}

// ---- drives ---------------------------------------------------------------------------------------------------------

void showDrives(ExtrasPage& page)
{
    const int row = page.DriveRow;
    page.Drives = machineOf(page).drivesWith(page.chosenDrives);
    page.DriveRow = std::min(row, static_cast<int>(page.Drives.get().size()) - 1);
}

const DriveFolder* chosenDrive(ExtrasPage& page)
{
    const std::vector<DriveFolder>& drives = page.Drives;
    const int row = page.DriveRow;
    return row >= 0 && row < static_cast<int>(drives.size()) ? &drives[static_cast<std::size_t>(row)] : nullptr;
}

void enableDriveButtons(ExtrasPage& page)
{
    const DriveFolder* drive = chosenDrive(page);
    page.DriveBrowse.Enabled = drive != nullptr && mayChange(*drive);
    page.DriveReset.Enabled = drive != nullptr && drive->origin == DriveFolder::Origin::User;
}

/// Without a "/" at the end; the root stays.
std::string tidyFolder(std::string_view text)
{
    std::string folder = trimmed(text);
    while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
    return folder;
}

void putBehind(ExtrasPage& page, char letter, const std::string& folder)
{
    if (folder.empty()) {
        page.chosenDrives.erase(letter);
    } else {
        page.chosenDrives[letter] = folder;
    }
    showDrives(page);
    enableDriveButtons(page);
}

/// Nothing when the user cancelled.
std::optional<std::string> askForFolder(ExtrasPage& page, char letter)
{
    const std::string title = std::string("Select the folder of drive ") + letter + ":";
    const auto folder = page.editor.platform.dialogues.chooseFolder(title, std::string(1, letter) + ":\\");
    if (!folder) return std::nullopt;
    return tidyFolder(machineOf(page).nativePath(*folder));
}

std::optional<char> firstFreeLetter(const std::vector<DriveFolder>& drives)
{
    for (char letter = 'd'; letter <= 'z'; ++letter) {
        const auto has = [letter](const DriveFolder& drive) { return drive.letter == letter; };
        if (std::none_of(drives.begin(), drives.end(), has)) return letter;
    }
    return std::nullopt;
}

bool isInUse(ExtrasPage& page, char letter)
{
    const Editor& editor = page.editor;
    for (const std::string& path :
         {editor.platform.programDirectory, editor.joystick.FilePath, editor.macro.FilePath}) {
        if (!path.empty() && lowerUtf8(path.substr(0, 1)) == std::string(1, letter)) return true;
    }
    return false;
}

std::string folderOf(const DriveChoices& choices, char letter)
{
    const auto choice = choices.find(letter);
    return choice == choices.end() ? std::string() : choice->second;
}

std::string changedLetters(const ExtrasPage& page)
{
    std::string letters;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        if (folderOf(page.chosenDrives, letter) != folderOf(page.drivesBefore, letter)) letters += letter;
    }
    return letters;
}

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
    DriveBrowse.Caption = "Choose fo&lder...";
    DriveBrowse.handler = [this] { DriveBrowse_Click(*this); };
    DriveAdd.Caption = "A&dd drive...";
    DriveAdd.handler = [this] { DriveAdd_Click(*this); };
    DriveReset.Caption = "As fo&und";
    DriveReset.handler = [this] { DriveReset_Click(*this); };
    m_rowChanged = DriveRow.changed.connect([this] { enableDriveButtons(*this); });
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
    page.drivesBefore = MachineSettings(shared.platformIni).drives();
    if (!page.unwritten) page.chosenDrives = page.drivesBefore;
    page.DriveRow = -1;
    showDrives(page);
    enableDriveButtons(page);
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
    for (const char letter : changedLetters(page))
        step([&] { settings.setDrive(letter, folderOf(page.chosenDrives, letter)); });
}

void moveDrives(ExtrasPage& page)
{
    std::string waiting;
    for (const char letter : changedLetters(page)) {
        if (isInUse(page, letter)) {
            waiting += (waiting.empty() ? "" : ", ") + std::string(1, letter) + ":";
        } else {
            machineOf(page).setDrive(letter, folderOf(page.chosenDrives, letter));
        }
    }
    if (!waiting.empty())
        say(page, "What I have open is on " + waiting + ", so that move waits until you start me the next time.");
}

bool mayChange(const DriveFolder& drive) { return drive.folder != "/" || drive.origin == DriveFolder::Origin::User; }

void writeDriveFolder(ExtrasPage& page, int row, const std::string& text)
{
    handle(page, "PREFS writeDriveFolder", [&] {
        const DriveFolder drive = page.Drives.get().at(static_cast<std::size_t>(row));
        const std::string folder = tidyFolder(text);
        const bool fits = folder.empty() || machineOf(page).folderExists(folder);
        if (mayChange(drive) && fits && folder != drive.folder) putBehind(page, drive.letter, folder);
        page.Drives.changed(); // the table shows what counts
        if (!fits)
            say(page, "There is no folder " + folder + " on this machine, so " + drive.letter + ": stays at " +
                          drive.folder + ".");
    });
}

void DriveBrowse_Click(ExtrasPage& page)
{
    handle(page, "PREFS DriveBrowse_Click", [&] {
        const DriveFolder* drive = chosenDrive(page);
        if (drive == nullptr) return;
        const char letter = drive->letter;
        if (const auto folder = askForFolder(page, letter)) putBehind(page, letter, *folder);
    });
}

void DriveAdd_Click(ExtrasPage& page)
{
    handle(page, "PREFS DriveAdd_Click", [&] {
        const auto letter = firstFreeLetter(page.Drives);
        if (!letter) return say(page, "All the letters from d: to z: are taken.");
        const auto folder = askForFolder(page, *letter);
        if (!folder) return;
        putBehind(page, *letter, *folder);
        const std::vector<DriveFolder>& drives = page.Drives;
        const auto added = std::find_if(drives.begin(), drives.end(),
                                        [letter](const DriveFolder& drive) { return drive.letter == *letter; });
        page.DriveRow = static_cast<int>(added - drives.begin());
    });
}

void DriveReset_Click(ExtrasPage& page)
{
    handle(page, "PREFS DriveReset_Click", [&] {
        if (const DriveFolder* drive = chosenDrive(page)) putBehind(page, drive->letter, "");
    });
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
