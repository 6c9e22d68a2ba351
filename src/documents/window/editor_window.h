#pragma once

#include "documents/pair/editor.h"
#include "documents/window/last_pair.h"

namespace tarvex {

/// The document window comes up: documents, lists, colours, the file of the command line, a favourite or the last pair,
/// the sound, and at first use the preferences.
void Form_Load(LastPair& lastPair);
/// The window came to the front.
void Form_Activate(Editor& editor);
/// Asks about the macro file, then the joystick file, when they are modified. False: the exit is cancelled.
bool Form_QueryUnload(Editor& editor);
void Form_Unload(Editor& editor);

/// Choices that live in menu ticks take them from their settings.
void tickMenus(Editor& editor);

/// Clears CommandLineFile when no such file exists.
void TestCommandLine(Editor& editor);

} // namespace tarvex
