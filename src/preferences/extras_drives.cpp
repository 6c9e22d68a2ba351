#include "preferences/extras_drives.h"

#include "platform/machine_settings.h"
#include "platform/windows1252.h"
#include "preferences/extras_handling.h"

#include <algorithm>
#include <optional>

namespace tarvex {

namespace {

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

} // namespace

void wireDrives(ExtrasPage& page)
{
    page.DriveBrowse.Caption = "Choose fo&lder...";
    page.DriveBrowse.handler = [&page] { DriveBrowse_Click(page); };
    page.DriveAdd.Caption = "A&dd drive...";
    page.DriveAdd.handler = [&page] { DriveAdd_Click(page); };
    page.DriveReset.Caption = "As fo&und";
    page.DriveReset.handler = [&page] { DriveReset_Click(page); };
    page.connections.push_back(page.DriveRow.changed.connect([&page] { enableDriveButtons(page); }));
}

void loadDrives(ExtrasPage& page)
{
    page.drivesBefore = MachineSettings(page.editor.shared.platformIni).drives();
    if (!page.unwritten) page.chosenDrives = page.drivesBefore;
    page.DriveRow = -1;
    showDrives(page);
    enableDriveButtons(page);
}

void takeDrives(ExtrasPage& page, const Steps& step)
{
    MachineSettings settings(page.editor.shared.platformIni);
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

} // namespace tarvex
