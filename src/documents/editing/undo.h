#pragma once

#include "documents/pair/editor.h"

#include <concepts>

namespace tarvex {

// Undo keeps whole formatted snapshots of a pane, so that it brings the colours back too. Level 1 is the newest; the
// position says which one is showing. Levels that were undone stay below a new one and can still be reached.

/// A character key of the pane is about to change its text (JoystickText_KeyPress, MacroText_KeyPress): groups typing
/// into levels. `key` is the character's code, 8 for Backspace, 13 for Return.
void Text_KeyPress(Editor& editor, Side& side, int key);
/// The user is about to change a pane by something else than a character key: that is a level of its own.
void paneEditComing(Editor& editor, Side& side);

/// Room for a new level 1 (UpdateUndoJoystickText, UpdateUndoMacroText): the oldest falls off once there are UndoMax
/// + 1.
void UpdateUndoText(const Editor& editor, Side& side);
/// Level 1 takes the pane's text and caret; nothing else moves.
void storeInNewestLevel(Side& side);
/// The same for a write that isn't recorded itself. Levels that were undone stay in reach below the newest one.
void storeStateBeforeWrite(Editor& editor, Side& side);
/// The pane changed: into the newest level, or by TakeNewLevel into a new one.
void recordUndo(Editor& editor, Side& side);
/// The change that `write` makes is a level of its own, also after a key that changed nothing.
template <std::invocable Write> void writeAsOneLevel(Side& side, Write&& write)
{
    side.TakeNewLevel = 1;
    write();
}

void mnuEditUndo_Click(Editor& editor);
void mnuEditRedo_Click(Editor& editor);

/// Both histories shrink to one empty level.
void DeleteUndosFromMemory(Editor& editor);
/// One history shrinks to the present text as its only level (DeleteUndosOnSaveJ, DeleteUndosOnSaveM).
void DeleteUndosOnSave(Editor& editor, Side& side);

} // namespace tarvex
