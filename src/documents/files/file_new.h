#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// An empty document in place of each; asks before unsaved text goes. mnuFileNewBoth asks for each in turn;
/// a cancel stops it.
void mnuFileNewJoystick_Click(Editor& editor);
void mnuFileNewMacro_Click(Editor& editor);
void mnuFileNewBoth_Click(Editor& editor);
/// Close is New for the document of the selected tab.
void mnuFileClose_Click(Editor& editor);
void mnuFileCloseBoth_Click(Editor& editor);

/// "untitled." and the kind's extension, in the programs directory: name, path and the tab's caption.
void nameUntitled(Editor& editor, Side& side);

} // namespace tarvex
