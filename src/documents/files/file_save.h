#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Saves the document of the selected tab. An untitled one, and one whose file is read only, goes through Save As.
void mnuFileSave_Click(Editor& editor);
/// Saves one of the two by that command, whichever tab is selected, and goes back to that tab.
void saveSide(Editor& editor, const Side& side);
void mnuFileSaveAs_Click(Editor& editor);
/// Each in turn, and back to the tab that was selected.
void mnuFileSaveBoth_Click(Editor& editor);

/// Write a document to its path, with backup and coloured shadow. When another program has changed the file the user is
/// asked first; when it can't be written the user is informed and Save As runs. False: the document wasn't saved, here
/// or elsewhere, and stays modified.
bool SaveJoystickText(Editor& editor);
bool SaveMacroText(Editor& editor);

/// Saves both panes whatever state the program is in, and says so. Nothing calls it; it stands ready for a report
/// window.
void EmergencySaveFiles(Editor& editor);

/// Backup copy of a document, when the settings ask for it.
void writeBackup(Editor& editor, Side& side);
/// The steps after the file itself was written: state, lists, status and coloured shadow.
void noteSaved(Editor& editor, Side& side);

} // namespace tarvex
