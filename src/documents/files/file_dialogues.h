#pragma once

#include "documents/pair/editor.h"

#include <string>

namespace tarvex {

// What the file dialogues offer: descriptions and patterns in turn, joined by "|".
std::string joystickOpenFilter(const Settings& settings);
std::string macroOpenFilter(const Settings& settings);
std::string bothOpenFilter(const Settings& settings);
std::string joystickSaveFilter(const Settings& settings);
std::string macroSaveFilter(const Settings& settings);

/// Where a file dialogue starts: in the programs folder, or as long as none is set in that of the document.
std::string dialogueFolder(const Editor& editor, const Side& side);

} // namespace tarvex
