#include "preferences/preferences_command.h"

#include "documents/window/hardware_changes.h"
#include "preferences/files_home_question.h"
#include "preferences/importing.h"
#include "preferences/scheme_in_force.h"
#include "preferences/tooltips.h"
#include "shell/extras.h"

namespace tarvex {

namespace {

/// At the first use, and whenever the user has ticked the question anew.
bool mayAskForFiles(const Preferences& preferences, bool isDue)
{
    const Shared& shared = preferences.editor.shared;
    return isDue && shared.settings.ProgramFilesPath.empty() && shared.extras.on(extraKey::askForFiles);
}

} // namespace

void mnuPreferencesEdit_Click(Preferences& preferences)
{
    Editor& editor = preferences.editor;
    const Steps step(editor.shared.errors, "ED_mnuPreferencesEdit_Click");
    const bool firstUse = editor.shared.settings.FirstTimeUsed == 1;
    const bool askedBefore = !editor.shared.extras.on(extraKey::askForFiles);
    PREFS_Form_Load(preferences);
    PREFS_UpdateTooltips(preferences);
    PREFS_Form_Activate(preferences);
    step([&] { editor.platform.dialogues.showModal("Preferences"); });
    PREFS_Form_Unload(preferences);
    if (mayAskForFiles(preferences, firstUse || askedBefore)) step([&] { askForFilesHome(preferences); });
    step([&] { moveUntitled(editor); });
    editor.shared.PreferencesPage = 0; // the plain command opens at the first page
    if (editor.shared.FontChanged == 1) step([&] { editor.operations.DamnFontWasChanged(); });
}

void wirePreferences(Preferences& preferences)
{
    Editor& editor = preferences.editor;
    editor.menus.mnuPreferencesEdit.handler = [&preferences] { mnuPreferencesEdit_Click(preferences); };
    preferences.miscellaneousPage.CheckShowTooltips.Click =
        [&preferences, inFrame = preferences.miscellaneousPage.CheckShowTooltips.Click] {
            inFrame();
            PREFS_UpdateTooltips(preferences);
        };
    preferences.extrasPage.Import.handler = [&preferences] {
        const Steps step(preferences.editor.shared.errors, "PREFS Import_Click");
        step([&preferences] { importInstallation(preferences); });
    };
    editor.operations.DamnFontWasChanged = [&editor] { DamnFontWasChanged(editor); };
}

} // namespace tarvex
