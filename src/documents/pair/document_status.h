#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

// The parts of the status bar, toolbar and menus that describe the selected document.

/// Shows the changed state of the selected document on the saved-state panel: image value + 2, and its tooltip; and on
/// the tabs which documents are modified.
void UpdateSavedIcon(Editor& editor);
/// Names the selected document in the status; a compile result and a macro's definition (it holds "=") stay up.
void showEditingText(Editor& editor);
/// Status panel 3: the line of a position, from 1.
void showLineNumber(Editor& editor, const Side& side, std::int64_t position);
/// Shows the colour of the text at the caret on Picture1.
void showCaretColour(Editor& editor);
/// The download command names the joystick file; one of another controller family can't be downloaded to this one.
void updateDownload(Editor& editor);

} // namespace tarvex
