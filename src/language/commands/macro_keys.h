#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Shows the definition of SelectedMacro in status panel 1 and, where the macro pane can be seen, selects it there.
void ShowMacroKeys(Editor& editor);

} // namespace tarvex
