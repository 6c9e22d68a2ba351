#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

// Puts changed preferences into force when the dialogue closes, without a restart.

/// Both panes take the font of the settings and keep their colours; no edit, and no undo level.
void DamnFontWasChanged(Editor& editor);
/// Both panes take the background of the settings; coloured text is coloured anew where files are coloured at all.
void showColourScheme(Editor& editor);
/// Toolbar, tips, the games' caption and the calibration command follow their settings.
void showSettingsInFrame(Editor& editor);

} // namespace tarvex
