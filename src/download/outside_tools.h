#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

// The programs of others that the Apps menu starts. None is waited for. The current directory stays where it was
// changed to for the program.

/// The tools in the Control Centre's folder get their handlers.
void wireControlCentreTools(Editor& editor);
void mnuAppsTMScope_Click(Editor& editor);
/// The maker's control panel for the controllers, else that of the system.
void mnuAppsProPanel_Click(Editor& editor);
void mnuAppsCTFJ_Click(Editor& editor);
void mnuLauncher_Click(Editor& editor);
/// Starts a user program, by its place on the menu from 0, with its command line unchanged.
void mnuCustomApp_Click(Editor& editor, int index);
/// The preferences, where the user's programs are set.
void mnuAppsEdit_Click(Editor& editor);

} // namespace tarvex
