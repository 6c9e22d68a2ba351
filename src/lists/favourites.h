#pragma once

#include "documents/pair/editor.h"
#include "lists/enter_favouritename.h"
#include "lists/recent_list.h"

#include <string>
#include <string_view>

namespace tarvex {

/// The named pairs of files.
struct Favourites {
    explicit Favourites(Editor& theEditor);
    Favourites(const Favourites&) = delete;
    Favourites& operator=(const Favourites&) = delete;

    Editor& editor;
    RecentList list; ///< columns: name, joystick path, macro path
    /// The favourite that was added or opened last. Its name is never cleared, so that a cancelled dialogue gives an
    /// earlier favourite the paths of the present files.
    Favourite current;
    EnterFavouritename form;
};

void GetFavourites(Favourites& favourites);
/// Builds the menu. It stays enabled without favourites too: that is where the first one is added.
void AddmnuFavouritesArray(Favourites& favourites);
/// -1 when the name stands on the menu just so, else 0.
std::int16_t IsFavOnMenuAlready(Favourites& favourites, const std::string& name);
/// Puts the current favourite, its paths in lower case, first in arrays, menu and settings. One of the same name takes
/// its paths.
void UpdateFavouritesMenu(Favourites& favourites);
void SaveFavourites(Favourites& favourites);
/// Makes the three arrays as long as the count says.
void FavsRedim(Favourites& favourites);

/// Opens one file of a pair without asking for its name. Extensions are compared with regard to case.
void OpenFavouriteFile(Favourites& favourites, const std::string& path);
/// The macro file is opened first, so that the joystick file is the one that is seen.
void mnuFavArray_Click(Favourites& favourites, int index);
/// Refuses files that were never saved; otherwise asks for a name.
void mnuFavouritesAddCurrent_Click(Favourites& favourites);
void mnuFavsEdit_Click(Favourites& favourites);

/// The file name without its last four characters, its first letter in upper case and the others in lower case.
std::string proposedName(std::string_view joystickPath);

} // namespace tarvex
