#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Analyses the macro file anew, as it stands on disk; unsaved changes are saved first, or nothing is done.
void mnuEditUpdateMacros_Click(Editor& editor);

} // namespace tarvex
