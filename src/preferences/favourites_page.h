#pragma once

#include "lists/favourites.h"

namespace tarvex {

/// The page "Favourites": the named pairs of files. "Apply" takes the boxes into the chosen entry; everything reaches
/// the menu at once and the file when the preferences close.
struct FavouritesPage {
    explicit FavouritesPage(Favourites& theFavourites);
    FavouritesPage(const FavouritesPage&) = delete;
    FavouritesPage& operator=(const FavouritesPage&) = delete;

    Favourites& favourites;
    ListBox List2;
    TextBox Text7;            ///< name
    TextBox Text8;            ///< joystick file
    TextBox Text9;            ///< macro file
    CheckBox LoadAppCheckBox; ///< the chosen entry is opened at each start
    Button Command13;         ///< removes the chosen entry
    Button Command14;         ///< applies the boxes to it
};

void loadFavourites(FavouritesPage& page);
/// Shows the chosen entry, the first one when none is chosen.
void UpdateFavouritesControls(FavouritesPage& page);
/// There is no entry: empties and greys what is about one.
void DisableFavouritesControls(FavouritesPage& page);

void PREFS_Command13_Click(FavouritesPage& page);
void PREFS_Command14_Click(FavouritesPage& page);
void LoadAppCheckBox_Click(FavouritesPage& page);

} // namespace tarvex
