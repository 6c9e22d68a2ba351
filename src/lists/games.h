#pragma once

#include "documents/pair/editor.h"
#include "lists/enter_game_name.h"
#include "lists/recent_list.h"
#include "shell/operation.h"

#include <string>

namespace tarvex {

/// The games that the user starts from here.
struct Games {
    explicit Games(Editor& theEditor);
    Games(const Games&) = delete;
    Games& operator=(const Games&) = delete;

    Editor& editor;
    RecentList list; ///< columns: name, command, working directory, joystick file
    Game current;    ///< the game clicked or added last
    EnterGameName form;
    Operation<const Game&> LaunchGame; ///< downloads the joystick file if asked to, starts the game, ends the program
};

/// Reads the list and ticks "Download joystick file first" as it was left.
void GetGames(Games& games);
/// Builds the menu, which stays enabled without games too: that is where the first one is added.
void AddmnuGamesArray(Games& games);
/// -1 when the name stands on the menu just so, else 0.
std::int16_t IsGameOnMenuAlready(Games& games, const std::string& name);
/// Puts the current game first in arrays, menu and settings. One of the same name takes its details.
void UpdateGamesMenu(Games& games);
void SaveGames(Games& games);
/// Makes the four arrays as long as the count says.
void GamesRedim(Games& games);

/// Saves what is modified, moves the game to the top and launches it.
void mnuGameArray_Click(Games& games, int index);
void mnuGamesAdd_Click(Games& games);
void mnuGamesEdit_Click(Games& games);
/// Turns the download before the launch on or off; stored at once.
void mnuGamesDownloadFirst_Click(Games& games);

} // namespace tarvex
