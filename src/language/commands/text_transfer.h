#pragma once

#include "documents/pair/editor.h"

#include <string_view>

namespace tarvex {

// A block of finished text goes into the pane of the selected tab with its colours, as one user edit. It is
// coloured in TempRichTextBox; whatever the file, by the words of the joystick file.

/// Transfers a text (bytes). An empty one does nothing.
void SafeinTransferText(Editor& editor, std::string_view text);
/// Transfers the text that stands in TempRichTextBox, and empties that.
void MacroTransferText(Editor& editor);

} // namespace tarvex
