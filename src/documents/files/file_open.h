#pragma once

#include "documents/pair/editor.h"

#include <string>

namespace tarvex {

/// Open one file, chosen by the user or, while OpeningWithoutAsking is 1, given by OpeningPath and OpeningName.
void mnuFileJoystickLoad_Click(Editor& editor);
void MnuFileMacroLoad_Click(Editor& editor);
/// Opens the chosen file and the one that belongs to it: the joystick file's macro file by its MDEF line or its name,
/// the macro file's joystick file by its name.
void mnuFileOpen_Click(Editor& editor);

/// Puts text into its pane as a file's, as showDocument does; a macro file's macros are listed, too.
void showFile(Editor& editor, Side& side, const std::string& path, const std::string& name, const std::string& bytes);
/// The same with what the file holds. False: it couldn't be read, and the user was informed.
bool loadFile(Editor& editor, Side& side, const std::string& path, const std::string& name);

/// Opens OpeningPath without asking: alone when single files are wanted, else with its partner.
void OpenPreviouslySavedFiles(Editor& editor);

} // namespace tarvex
