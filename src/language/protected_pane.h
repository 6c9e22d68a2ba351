#pragma once

#include "documents/editor.h"

namespace tarvex {

/// For a command that is about to write into the pane of the selected tab. True: the pane is protected, and the status
/// says so.
bool refuseProtected(Editor& editor);

} // namespace tarvex
