#pragma once

#include "documents/pair/editor.h"

#include <cstddef>

namespace tarvex {

// Work on the pane of the selected tab. Copied text goes out plain and as RTF; of RTF that comes in, the colours stay.
void mnuEditCut_Click(Editor& editor);
void mnuEditCopy_Click(Editor& editor);
void mnuEditPaste_Click(Editor& editor);
/// The same without colours: the text looks as if it had been typed.
void mnuEditPastePlain_Click(Editor& editor);
void mnuEditDelete_Click(Editor& editor);
void mnuEditSelectAll_Click(Editor& editor);

/// Brings Cut, Copy and Paste of menu and toolbar up to date with selection and clipboard. A protected pane offers
/// neither Cut nor Paste.
void UpdateCCPButtons(Editor& editor);

/// What a copy, or a drag, of the pane's selection carries.
ClipboardContent selectionContent(const Pane& pane);
/// Replaces the pane's selection by what was pasted or dropped; a locked pane stays. The text takes the font of its
/// place and brings at most colours. Returns how many of its characters the pane can't hold: "?" stands in their place.
std::size_t insertContent(Pane& pane, const ClipboardContent& content);
/// Says in the status bar how many characters became "?", if any.
void reportLostCharacters(Editor& editor, std::size_t count);

} // namespace tarvex
