#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Turns the lines that the selection of the selected tab's pane touches into comments, as one edit.
void REMblock(Editor& editor);
/// Writes "Rem " in front of the caret's line; the caret moves with its text.
void RemBlockCommon(Editor& editor);
/// Takes "Rem " (or "Rem" where no word goes on) from the beginning of the selected lines, as one edit. Other lines
/// stay, and without any comment among them nothing is edited.
void REMunblock(Editor& editor);

} // namespace tarvex
