#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// The tooltip of the macro lists, or none (UpdateTooltips of Editor).
void UpdateEditorTooltips(Editor& editor);
/// Shows the command and the button that calibrate, or hides them, by their setting. ShowExtraButtons comes before it:
/// the button is one of those, too.
void showCalibration(Editor& editor);
/// Connects what toolbar, tooltips and the choice of colours offer to other units.
void wireFrame(Editor& editor);

} // namespace tarvex
