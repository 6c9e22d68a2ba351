#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// The program's own tools on the Apps menu get their handlers, if they are there: their windows are added before. A
/// command whose window isn't there has none, which greys it.
void wireOwnTools(Editor& editor);
/// The controller analyser, if the user prefers that, else the joystick analyser.
void mnuAppsJoyAnalyser_Click(Editor& editor);

} // namespace tarvex
