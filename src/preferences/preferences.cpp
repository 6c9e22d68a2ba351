#include "preferences/preferences.h"

#include "documents/window/hardware_changes.h"
#include "lists/custom_apps.h"
#include "preferences/previous_loaders.h"
#include "preferences/scheme_in_force.h"

#include <string_view>

namespace tarvex {

namespace {

constexpr std::string_view formName = "Preferences";

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

void takePages(Preferences& preferences, const Steps& step)
{
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
    if (editor.shared.HardwareChangedMark == 1) step([&] { HardwareHasChanged(editor); });
    step([&] { showSettingsInFrame(editor); });
    step([&] { AddmnuFavouritesArray(preferences.lists.favourites); });
    step([&] { AddmnuGamesArray(preferences.lists.games); });
    step([&] { UpdateMnuCustomApps(editor); });
    if (preferences.coloursPage.coloursChanged) step([&] { showColourScheme(editor); });
}

} // namespace

Preferences::Preferences(Editor& theEditor, Lists& theLists)
    : editor(theEditor), lists(theLists), fileLocationsPage(theEditor, SSTab1.Pages(winLoad)), coloursPage(theEditor),
      appsPage(theEditor), favouritesPage(theLists.favourites), gamesPage(theLists.games), savingPage(theEditor),
      miscellaneousPage(theEditor), winLoadPage(theEditor.shared)
{
    Form.Caption = "Preferences";
    Form.Close = [this] { Form.Visible = false; };
    SSTab1.Click = [this] { SSTab1_Click(*this); };
    Command3.Caption = "OK";
    Command3.handler = [this] { Form.Visible = false; };
    Command6.Caption = "&Help";
    Command6.handler = [this] { PREFS_Command6_Click(*this); };
}

void PREFS_Form_Load(Preferences& preferences)
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
    putIntoForce(preferences, step);
}

void PREFS_Command6_Click(Preferences& preferences)
{
    const Steps step(preferences.editor.shared.errors, "PREFS Command6_Click");
    step([&] {
        if (preferences.SSTab1.Tab == Preferences::winLoad) {
            preferences.editor.platform.dialogues.show(
                {.title = "See Ned's ReadMe.txt file",
                 .text = "There is no help in the help file for the Sticky tab. You should instead refer to the "
                         "ReadMe.txt file distributed with WinLoad for an explaination of the options on this tab."});
            return;
        }
        preferences.editor.operations.HelpKeyword("Preferences");
    });
}

void mnuPreferencesEdit_Click(Preferences& preferences)
{
    Editor& editor = preferences.editor;
    const Steps step(editor.shared.errors, "ED_mnuPreferencesEdit_Click");
    PREFS_Form_Load(preferences);
    PREFS_Form_Activate(preferences);
    step([&] { editor.platform.dialogues.showModal(std::string(formName)); });
    PREFS_Form_Unload(preferences);
    editor.shared.PreferencesPage = 0; // the plain command opens at the first page
    if (editor.shared.FontChanged == 1) step([&] { editor.operations.DamnFontWasChanged(); });
}

void wirePreferences(Preferences& preferences)
{
    Editor& editor = preferences.editor;
    editor.menus.mnuPreferencesEdit.handler = [&preferences] { mnuPreferencesEdit_Click(preferences); };
    editor.operations.DamnFontWasChanged = [&editor] { DamnFontWasChanged(editor); };
}

} // namespace tarvex
