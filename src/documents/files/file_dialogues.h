#pragma once

#include "documents/pair/editor.h"

#include <optional>
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

// Show a dialogue. Before that, the root of the drive where it starts becomes the current directory.
std::optional<std::string> askForFileToOpen(Editor& editor, const FileRequest& request);
std::optional<std::string> askForFileToSave(Editor& editor, const FileRequest& request);

} // namespace tarvex
