#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// A minute has gone by: saves when AutoSaveTime of them have.
void Timer1_Timer(Editor& editor);
/// Saves each modified document to its path, untitled or not, and asks nothing. One that can't be written, or whose
/// file another program has changed, stays modified, and the status bar says so.
void AutoSaveFile(Editor& editor);

} // namespace tarvex
