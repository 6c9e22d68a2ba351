#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

// Work on the pane of the selected tab. Copied text goes out plain and as RTF; RTF comes in with its formats.
void mnuEditCut_Click(Editor& editor);
void mnuEditCopy_Click(Editor& editor);
void mnuEditPaste_Click(Editor& editor);
void mnuEditDelete_Click(Editor& editor);
void mnuEditSelectAll_Click(Editor& editor);

/// Brings Cut, Copy and Paste of menu and toolbar up to date with selection and clipboard. A protected pane offers
/// neither Cut nor Paste.
void UpdateCCPButtons(Editor& editor);

/// What a copy, or a drag, of the pane's selection carries.
ClipboardContent selectionContent(const Pane& pane);
/// Replaces the pane's selection by what was pasted or dropped; a locked pane stays.
void insertContent(Pane& pane, const ClipboardContent& content);

} // namespace tarvex
