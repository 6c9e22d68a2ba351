#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// The tooltip of the macro lists, or none (UpdateTooltips of Editor).
void UpdateEditorTooltips(Editor& editor);
/// Connects what toolbar, tooltips and the choice of colours offer to other units.
void wireFrame(Editor& editor);

} // namespace tarvex
