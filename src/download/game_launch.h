#pragma once

#include "documents/pair/editor.h"
#include "lists/games.h"

namespace tarvex {

/// Downloads the game's joystick file if the user wants that first, starts the game in its working directory, and ends
/// the program. A failure is reported, and the program stays.
void launchGame(Editor& editor, const Game& game);

} // namespace tarvex
