#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// For a command that is about to write into a pane. True: the pane is protected, and the status says so.
bool refuseProtected(Editor& editor, const Side& side);
/// The same for the pane of the selected tab.
bool refuseProtected(Editor& editor);

} // namespace tarvex
