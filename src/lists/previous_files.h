#pragma once

#include "documents/pair/editor.h"
#include "lists/recent_list.h"

#include <string>
#include <string_view>

namespace tarvex {

/// One of the two lists with all that belongs to it: where its entries stand in memory, on the menu and in the
/// settings, and the names under which its failures are reported.
struct PreviousList {
    RecentList list;
    MenuItem& parent; ///< the menu that holds the list
    MenuItem& clear;  ///< the command that empties it
    std::string& latest;
    Access update; ///< what writes it
    struct {
        std::string_view add, isOnMenu, update, click, clear;
    } tags;
};

/// The files opened or saved lately, joystick files and macro files apart.
struct PreviousFiles {
    explicit PreviousFiles(Editor& theEditor);
    PreviousFiles(const PreviousFiles&) = delete;
    PreviousFiles& operator=(const PreviousFiles&) = delete;

    Editor& editor;
    std::string LatestJoystickFile; ///< what the caller of an update sets before it; lower-cased by the update
    std::string LatestMacroFile;
    PreviousList joystick;
    PreviousList macro;
};

/// Reads both lists and builds both menus.
void GetPreviousFiles(PreviousFiles& files);

/// Build a list's menu from the array; an empty list greys the menu that holds it.
void AddMnuJFArray(PreviousFiles& files);
void AddMnuMFArray(PreviousFiles& files);
/// -1 when the path stands on the menu just so, else 0.
std::int16_t IsJFonMenuAlready(PreviousFiles& files, const std::string& path);
std::int16_t IsMFonMenuAlready(PreviousFiles& files, const std::string& path);
/// Put the latest file, which becomes lower case, first in array, menu and settings.
void UpdateRecentJFMenuList(PreviousFiles& files);
void UpdateRecentMFMenuList(PreviousFiles& files);

/// Opens the file that the item names; a missing one is reported and stays in the list.
void mnuJFArray_Click(PreviousFiles& files, int index);
void mnuMFArray_Click(PreviousFiles& files, int index);
void mnuPreviousClearAllJ_Click(PreviousFiles& files);
void mnuPreviousClearAllM_Click(PreviousFiles& files);

} // namespace tarvex
