#pragma once

#include "documents/pair/editor.h"
#include "language/pass_runner.h"

#include <functional>

namespace tarvex {

/// Colours a whole document by its list of passes and keeps the result in the undo level that is showing and in the
/// coloured shadow. An empty text only gets a status text. Nothing counts as an edit. A pass that can't end is held
/// until the user goes on.
void ApplyColourHighlighting(Editor& editor);
void ApplyMacroColourHighlighting(Editor& editor);
/// The same for a file that is being opened: nothing is held. A pass that can't end is left, and becomes a remark.
void colourOpenedJoystickFile(Editor& editor);
void colourOpenedMacroFile(Editor& editor);

/// Both documents; the selected tab stays.
void mnuViewApplyColourBothFiles_Click(Editor& editor);

/// From the pop-up menu: the document of the pane that the menu belongs to.
void mnuRHMColour_Click(Editor& editor);

/// What a held run does: status panel 1 names the line and the keys, and the user ends the first hold by one of them;
/// those that follow in the same run end by themselves.
std::function<void(const Hold&)> holdUntilEscape(Platform& platform, Mum& mum);

} // namespace tarvex
