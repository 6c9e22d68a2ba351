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

/// Opens OpeningPath without asking: alone when single files are wanted, else with its partner.
void OpenPreviouslySavedFiles(Editor& editor);

} // namespace tarvex
