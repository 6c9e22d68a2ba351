#pragma once

#include "lists/games.h"

namespace tarvex {

/// The page "Games": what is written in the boxes belongs to the chosen game at once, and to the file when the
/// preferences close.
struct GamesPage {
    explicit GamesPage(Games& theGames);
    GamesPage(const GamesPage&) = delete;
    GamesPage& operator=(const GamesPage&) = delete;

    Games& games;
    ListBox List3;
    TextBox Text12;       ///< name
    TextBox Text11;       ///< command that starts the game
    TextBox Text4;        ///< working directory
    TextBox Text13;       ///< joystick file
    Button Command12;     ///< removes the chosen game
    bool showing = false; ///< the boxes are being filled by the program

private:
    std::array<Connection, 4> m_textChanged;
};

void loadGames(GamesPage& page);
/// Shows the chosen game, the first one when none is chosen.
void UpdateGamesControls(GamesPage& page);
/// There is no game: empties and greys what is about one.
void DisableGamesControls(GamesPage& page);

void PREFS_Command12_Click(GamesPage& page);

} // namespace tarvex
