#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Captions, tooltips and enabling of Undo and Redo for the selected document.
void UpdateUndoRedoMenus(Editor& editor);

} // namespace tarvex
