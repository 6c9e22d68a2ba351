#pragma once

#include "documents/pair/editor.h"
#include "lists/games.h"

namespace tarvex {

/// Gives the commands that run outside programs their work.
void wireDownload(Editor& editor, Games& games);

} // namespace tarvex
