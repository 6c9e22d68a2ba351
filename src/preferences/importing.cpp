#include "preferences/importing.h"

#include "documents/window/editor_window.h"
#include "documents/window/hardware_changes.h"

#include <tuple>

namespace tarvex {

namespace {

/// The settings that units read only when they come up, apart from places on the screen.
constexpr Access readAgain[] = {Access::GetSpaces,      Access::GetSafeinOptions,       Access::GetOpenSingleOnly,
                                Access::GetIndentStuff, Access::GetLastImagesDirectory, Access::GetTcaOptions};

void say(Preferences& preferences, const std::string& title, const std::string& text)
{
    preferences.editor.platform.dialogues.show({.title = title, .text = text, .icon = BoxIcon::Information});
}

/// Imported settings count from now on: in memory, in the pages, and on the panes when the preferences close.
void takeImported(Preferences& preferences)
{
    Editor& editor = preferences.editor;
    Shared& shared = editor.shared;
    const Steps step(shared.errors, "PREFS takeImported");
    const auto kindOfFiles = [&settings = shared.settings] {
        return std::tuple(settings.JoyName, settings.JoystickExtension.whole(), settings.MacroExtension.whole());
    };
    const auto before = kindOfFiles();
    shared.store.GetOptions();
    shared.store.GetColours();
    for (const Access procedure : readAgain) shared.store.read(procedure, "PREFS takeImported");
    step([&] { editor.operations.GetPreviousFiles(); });
    step([&] { editor.operations.GetFavourites(); });
    step([&] { editor.operations.GetGames(); });
    step([&] { editor.operations.GetCustomApps(); });
    step([&] { tickMenus(editor); });
    step([&] { F22MenusUpdate(editor); }); // a quiet download is not for the F-22 Pro
    if (kindOfFiles() != before) shared.HardwareChangedMark = 1;
    shared.FontChanged = 1;
    loadSettingsPages(preferences);
    preferences.coloursPage.coloursChanged = true;
}

/// Where the imported folder of the files is none of this machine, the drives are what to look at next.
std::string aboutFiles(Preferences& preferences)
{
    const std::string folder = preferences.editor.shared.settings.ProgramFilesPath.whole();
    if (folder.empty() || preferences.editor.platform.files.directoryExists(folder)) return {};
    return "\n\nYour files were in " + folder +
           ", which isn't there on this machine. Either set that drive on the Extras page, or choose another folder on "
           "the File locations page.";
}

void report(Preferences& preferences, const ImportReport& done, const std::string& hint)
{
    const std::string files = done.copied == 1 ? "1 file" : std::to_string(done.copied) + " files";
    std::string text = "I've copied " + files + ". Your settings as they were before are in " + done.keptIn + ".";
    if (!done.problems.empty()) text += "\n\nThis went wrong:\n" + done.problems;
    say(preferences, done.problems.empty() ? "Welcome back!" : "Ooops!", text + hint);
}

bool copyTicked(Preferences& preferences)
{
    ImportForm& form = preferences.importForm;
    Editor& editor = preferences.editor;
    std::array<bool, importParts> ticked{};
    for (std::size_t i = 0; i < importParts; ++i) ticked[i] = form.Parts[i].Enabled && form.Parts[i].Value;
    ImportReport done;
    editor.platform.desktop.showHourglass(true);
    const Steps step(editor.shared.errors, "PREFS import");
    const bool safe = step(
        [&] { done = import(editor.platform.files, form.installation, ticked, editor.platform.programDirectory); });
    editor.platform.desktop.showHourglass(false);
    if (!safe) {
        say(preferences, "Ooops!",
            "I couldn't keep a copy of your settings as they are, so I haven't imported anything: " + step.whyNot());
        return false;
    }
    const bool settings =
        ticked[static_cast<std::size_t>(ImportPart::Settings)] || ticked[static_cast<std::size_t>(ImportPart::Lists)];
    if (settings) takeImported(preferences);
    report(preferences, done, settings ? aboutFiles(preferences) : "");
    return true;
}

} // namespace

bool importInstallation(Preferences& preferences)
{
    Platform& platform = preferences.editor.platform;
    const auto chosen =
        platform.dialogues.chooseFolder("Select the folder of the old installation, or one above it", "z:\\");
    if (!chosen) return false;
    platform.desktop.showHourglass(true);
    Installation found = examine(platform.files, findInstallation(platform.files, *chosen));
    platform.desktop.showHourglass(false);
    if (found.isEmpty()) {
        say(preferences, "Hmmm...let me think...",
            "I've found no settings, lists, templates or backups of mine in " + *chosen + " or the folders below it.");
        return false;
    }
    const std::string own = platform.programDirectory;
    if (platform.files.liesWithin(found.folder + "\\", own) && platform.files.liesWithin(own, found.folder + "\\")) {
        say(preferences, "Hmmm...let me think...",
            "That's where I keep my own settings. There is nothing to bring along.");
        return false;
    }
    IMPORT_Form_Load(preferences.importForm, std::move(found));
    platform.dialogues.showModal("Import");
    return preferences.importForm.accepted && copyTicked(preferences);
}

} // namespace tarvex
