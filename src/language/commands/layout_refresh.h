#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// The whole text of the selected tab's pane gets the font of the settings, colour 0 and the fixed indent.
void mnuViewReformat_Click(Editor& editor);
/// The whole text of the selected tab's pane gets the fixed indent; fonts and colours stay.
void mnuViewrefreshIndent_Click(Editor& editor);

} // namespace tarvex
