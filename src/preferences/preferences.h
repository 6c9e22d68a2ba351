#pragma once

#include "lists/lists.h"
#include "preferences/apps_page.h"
#include "preferences/colours_page.h"
#include "preferences/extras_page.h"
#include "preferences/favourites_page.h"
#include "preferences/file_locations_page.h"
#include "preferences/files_home.h"
#include "preferences/games_page.h"
#include "preferences/import_form.h"
#include "preferences/miscellaneous_page.h"
#include "preferences/saving_page.h"
#include "preferences/winload_page.h"

namespace tarvex {

/// The dialogue through which the user sets what the settings keep. There is no Cancel: however it closes, everything
/// is taken, written and put into force.
struct Preferences {
    Preferences(Editor& theEditor, Lists& theLists);
    Preferences(const Preferences&) = delete;
    Preferences& operator=(const Preferences&) = delete;

    /// Pages of SSTab1.
    enum Page { fileLocations, colours, apps, favourites, games, saving, miscellaneous, winLoad, extras };

    Editor& editor;
    Lists& lists;
    tarvex::Form Form;
    SSTab SSTab1{"&File locations", "&Colours/Fonts", "&Apps",   "Fa&vourites", "&Games",
                 "&Open/Save/Undo", "&Miscellaneous", "&Sticky", "E&xtras"};
    FileLocationsPage fileLocationsPage;
    ColoursPage coloursPage;
    AppsPage appsPage;
    FavouritesPage favouritesPage;
    GamesPage gamesPage;
    SavingPage savingPage;
    MiscellaneousPage miscellaneousPage;
    WinLoadPage winLoadPage;
    ExtrasPage extrasPage;
    ImportForm importForm;
    FilesHome filesHome;
    Button Command3; ///< OK
    Button Command6; ///< help on the page that is shown
};

/// Fills the controls of the eight pages that show the settings.
void loadSettingsPages(Preferences& preferences);
/// Fills every control.
void PREFS_Form_Load(Preferences& preferences);
/// Shows the page that was asked for, with the keyboard in its first box.
void PREFS_Form_Activate(Preferences& preferences);
/// The user chose a page.
void SSTab1_Click(Preferences& preferences);
/// The dialogue closes: takes, writes and puts into force what its pages hold.
void PREFS_Form_Unload(Preferences& preferences);
void PREFS_Command6_Click(Preferences& preferences);

} // namespace tarvex
