#pragma once

#include "documents/pair/editor.h"
#include "language/pass_runner.h"

#include <functional>

namespace tarvex {

/// Colours a whole document by its list of passes and keeps the result in the undo level that is showing and in the
/// coloured shadow. An empty text is only told. Nothing counts as an edit.
void ApplyColourHighlighting(Editor& editor);
void ApplyMacroColourHighlighting(Editor& editor);

/// Both documents; the selected tab stays.
void mnuViewApplyColourBothFiles_Click(Editor& editor);

/// From the pop-up menu: the document of the pane that the menu belongs to.
void mnuRHMColour_Click(Editor& editor);

/// What a held run of the program does: status panel 1 names the line, and the user's Esc ends the first hold; those
/// that follow in the same run end by themselves.
std::function<void(const Hold&)> holdUntilEscape(Platform& platform, Mum& mum);

} // namespace tarvex
