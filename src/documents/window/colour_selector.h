#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Makes it one of the tool windows and gives its buttons their colours.
void wireColourSelector(Editor& editor);
/// Opens the window where its form stands.
void showColourSelector(Editor& editor, ColourTarget target);
/// The swatches take the colours of the scheme; that of "Black" stays black.
void ColourSelector_Activate(Editor& editor);
/// The selection of the target, or what is typed there next, takes the swatch's colour. That doesn't count as an edit:
/// the document's changed state stays, though the colouring has an undo level of its own. A protected pane keeps its
/// colours.
void ColourSelector_Command1_Click(Editor& editor, std::size_t index);
/// The Esc key, 27, closes the window.
void ColourSelector_KeyDown(Editor& editor, int key);
void ColourSelector_LostFocus(Editor& editor);

} // namespace tarvex
