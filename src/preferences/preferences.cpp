#include "preferences/preferences.h"

#include "documents/window/hardware_changes.h"
#include "lists/custom_apps.h"
#include "platform/runner_missing.h"
#include "preferences/extras_controls.h"
#include "preferences/extras_drives.h"
#include "preferences/previous_loaders.h"
#include "preferences/scheme_in_force.h"
#include "shell/hardware/hardware_profile.h"
#include "shell/help_topics.h"

#include <string_view>
#include <vector>

namespace tarvex {

namespace {

/// The first box of a page; none: the page has no box to begin with.
const Focusable* firstBoxOf(Preferences& preferences, int page)
{
    switch (page) {
    case Preferences::fileLocations:
        return &preferences.fileLocationsPage.Text1;
    case Preferences::apps:
        return &preferences.appsPage.Text5;
    case Preferences::favourites:
        return &preferences.favouritesPage.Text7;
    case Preferences::games:
        return &preferences.gamesPage.Text12;
    case Preferences::saving:
        return &preferences.savingPage.Text3;
    default:
        return nullptr;
    }
}

void updateListPage(Preferences& preferences, int page)
{
    if (page == Preferences::favourites) {
        if (preferences.favouritesPage.List2.Items.get().empty())
            DisableFavouritesControls(preferences.favouritesPage);
        else
            UpdateFavouritesControls(preferences.favouritesPage);
    }
    if (page == Preferences::games) {
        if (preferences.gamesPage.List3.Items.get().empty())
            DisableGamesControls(preferences.gamesPage);
        else
            UpdateGamesControls(preferences.gamesPage);
    }
}

void focusFirstBox(Preferences& preferences)
{
    if (const Focusable* box = firstBoxOf(preferences, preferences.SSTab1.Tab)) box->SetFocus();
}

/// At the first use the joystick that is shown counts as chosen, too: the default extensions are those of another one.
void confirmJoystick(Shared& shared)
{
    Settings& settings = shared.settings;
    if (settings.FirstTimeUsed != 1) return;
    const std::string before = settings.JoystickExtension.whole();
    ComboJoystick_Click(shared, settings.JoyName);
    if (settings.JoystickExtension.whole() != before) shared.HardwareChangedMark = 1;
}

void takePages(Preferences& preferences, const Steps& step)
{
    step([&] { confirmJoystick(preferences.editor.shared); });
    step([&] { takeFileLocations(preferences.fileLocationsPage); });
    step([&] { takeApps(preferences.appsPage); });
    step([&] { takeSaving(preferences.savingPage); });
    step([&] { takeMiscellaneous(preferences.miscellaneousPage); });
    preferences.editor.shared.settings.FirstTimeUsed = 0;
}

/// Every INI file is written once, however many procedures write keys of it.
void writeSettings(Preferences& preferences, const Steps& step)
{
    Editor& editor = preferences.editor;
    Shared& shared = editor.shared;
    const SettingsStore::Batch together(shared.store);
    const ProfileFile::Batch machine(shared.platformIni);
    shared.store.SaveOptions();
    step([&] { SaveFilesPath(editor); });
    step([&] { SaveColourScheme(editor); });
    step([&] { SaveApps(editor); });
    step([&] { SaveFavourites(preferences.lists.favourites); });
    step([&] { SaveGames(preferences.lists.games); });
    step([&] { SavePreviousLoaders(shared); });
    const Settings& settings = shared.settings;
    if (!settings.B50LoadPath.empty() && !settings.WinLoadString.empty())
        step([&] { SaveWinLoadStuff(preferences.winLoadPage); });
    step([&] { takeExtras(preferences.extrasPage); });
}

using Unwritten = std::vector<SettingsStore::WriteFailure>;

/// The keys that the last write has not brought to the disk.
Unwritten unwrittenFiles(Preferences& preferences)
{
    const Shared& shared = preferences.editor.shared;
    Unwritten failures = shared.store.writeFailures();
    const std::string& reason = shared.platformIni.whyNotWritten();
    preferences.extrasPage.unwritten = !reason.empty();
    if (!reason.empty()) failures.push_back({shared.platformIni.path(), reason});
    return failures;
}

/// One box for all keys; the settings are in memory all the same.
void reportUnwritten(Preferences& preferences, const Unwritten& failures)
{
    if (failures.empty()) return;
    std::string files;
    for (const auto& [path, reason] : failures) files += "\n    " + path + ": " + reason;
    preferences.editor.platform.dialogues.show(
        {.title = "Ooops!",
         .text = "I couldn't write this:\n" + files +
                 "\n\nWhat you've set counts until you close me, and I'll try again the next time that you close the "
                 "preferences.",
         .icon = BoxIcon::Exclamation});
}

void restartAutoSave(Editor& editor)
{
    if (editor.shared.settings.AutoSaveEnabled != 1) {
        editor.Timer1.Enabled = false;
        return;
    }
    editor.AutoSaveMinutes = 0;
    editor.Timer1.Enabled = true;
}

void putIntoForce(Preferences& preferences, const Steps& step)
{
    Editor& editor = preferences.editor;
    step([&] { restartAutoSave(editor); });
    step([&] { moveDrives(preferences.extrasPage); });
    if (editor.shared.HardwareChangedMark == 1) step([&] { HardwareHasChanged(editor); });
    step([&] { showSettingsInFrame(editor); });
    step([&] { AddmnuFavouritesArray(preferences.lists.favourites); });
    step([&] { AddmnuGamesArray(preferences.lists.games); });
    step([&] { UpdateMnuCustomApps(editor); });
    if (preferences.coloursPage.coloursChanged) step([&] { showColourScheme(editor); });
}

/// WinLoad's own help is a file for the viewer of Windows. False: there is no such file, or no viewer.
bool showStickyHelp(Platform& platform)
{
    const std::string file = platform.programDirectory + "\\sticky.hlp";
    if (!platform.files.fileExists(file)) return false;
    const Steps step;
    return step([&] {
        try {
            platform.processes.start({platform.processes.windowsDirectory() + "\\winhlp32.exe ", file},
                                     windowStyle::normal, platform.programDirectory);
        } catch (const RunnerMissing&) { // a box has said so
        }
    });
}

} // namespace

Preferences::Preferences(Editor& theEditor, Lists& theLists)
    : editor(theEditor), lists(theLists), fileLocationsPage(theEditor, SSTab1.Pages(winLoad)), coloursPage(theEditor),
      appsPage(theEditor), favouritesPage(theLists.favourites), gamesPage(theLists.games), savingPage(theEditor),
      miscellaneousPage(theEditor), winLoadPage(theEditor.shared), extrasPage(theEditor)
{
    Form.Caption = "Preferences";
    Form.Close = [this] { Form.Visible = false; };
    SSTab1.Click = [this] { SSTab1_Click(*this); };
    Command3.Caption = "OK";
    Command3.handler = [this] { Form.Visible = false; };
    Command6.Caption = "&Help";
    Command6.handler = [this] { PREFS_Command6_Click(*this); };
    wireExtras(extrasPage);
}

void loadSettingsPages(Preferences& preferences)
{
    const Steps step(preferences.editor.shared.errors, "PREFS Form_Load");
    step([&] { loadFileLocations(preferences.fileLocationsPage); });
    step([&] { loadColours(preferences.coloursPage); });
    step([&] { loadApps(preferences.appsPage); });
    step([&] { loadFavourites(preferences.favouritesPage); });
    step([&] { loadGames(preferences.gamesPage); });
    step([&] { loadSaving(preferences.savingPage); });
    step([&] { loadMiscellaneous(preferences.miscellaneousPage); });
    step([&] { GetWinloadStuff(preferences.winLoadPage); });
}

void PREFS_Form_Load(Preferences& preferences)
{
    loadSettingsPages(preferences);
    const Steps step(preferences.editor.shared.errors, "PREFS Form_Load");
    step([&] { loadExtras(preferences.extrasPage); });
}

void PREFS_Form_Activate(Preferences& preferences)
{
    const Steps step;
    const int page = preferences.editor.shared.PreferencesPage;
    step([&] {
        const bool enabled = preferences.SSTab1.Pages(page).Enabled;
        preferences.SSTab1.Tab = page;
        if (enabled) focusFirstBox(preferences);
    });
}

void SSTab1_Click(Preferences& preferences)
{
    const Steps step(preferences.editor.shared.errors, "PREFS SSTab1_Click");
    step([&] { updateListPage(preferences, preferences.SSTab1.Tab); });
    step([&] { focusFirstBox(preferences); });
}

void PREFS_Form_Unload(Preferences& preferences)
{
    const Steps step(preferences.editor.shared.errors, "PREFS Form_Unload");
    takePages(preferences, step);
    step([&] { writeSettings(preferences, step); });
    const Unwritten failures = unwrittenFiles(preferences);
    putIntoForce(preferences, step);
    step([&] { reportUnwritten(preferences, failures); });
}

void PREFS_Command6_Click(Preferences& preferences)
{
    const Steps step(preferences.editor.shared.errors, "PREFS Command6_Click");
    step([&] {
        if (preferences.SSTab1.Tab == Preferences::winLoad) {
            if (showStickyHelp(preferences.editor.platform)) return;
            preferences.editor.platform.dialogues.show(
                {.title = "See Ned's ReadMe.txt file",
                 .text = "There is no help in the help file for the Sticky tab. You should instead refer to the "
                         "ReadMe.txt file distributed with WinLoad for an explaination of the options on this tab."});
            return;
        }
        preferences.editor.operations.HelpTopic(helpTopic::firstPreferencesPage + preferences.SSTab1.Tab);
    });
}

} // namespace tarvex
