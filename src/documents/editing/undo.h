#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

// Undo keeps whole formatted snapshots of a pane, so that it brings the colours back too. Level 1 is the newest; the
// position tells which one is showing. Levels that were undone stay below a new one and can still be reached.

/// A character key of the pane is about to change its text: groups typing into levels. `key` is the character's code,
/// 8 for Backspace, 13 for Return.
void JoystickText_KeyPress(Editor& editor, int key);
void MacroText_KeyPress(Editor& editor, int key);

/// Room for a new level 1 (UpdateUndoJoystickText, UpdateUndoMacroText): the oldest falls off once there are UndoMax
/// + 1.
void UpdateUndoText(const Editor& editor, Side& side);
/// Level 1 takes the pane's text and caret; nothing else moves.
void storeInNewestLevel(Side& side);
/// The pane changed: into the newest level, or by TakeNewLevel into a new one.
void recordUndo(Editor& editor, Side& side);

void mnuEditUndo_Click(Editor& editor);
void mnuEditRedo_Click(Editor& editor);

/// Both histories shrink to one empty level.
void DeleteUndosFromMemory(Editor& editor);
/// One history shrinks to the present text as its only level (DeleteUndosOnSaveJ, DeleteUndosOnSaveM).
void DeleteUndosOnSave(Editor& editor, Side& side);

} // namespace tarvex
