#pragma once

#include "documents/pair/editor.h"

#include <string>

namespace tarvex {

// The box over the macro list. Only macros that hold its text are shown; their numbers in the list stay.

/// Whether the filter lets a macro be seen; case doesn't count.
bool passesFilter(const FrameMacros& frame, const std::string& macro);

/// Shows the box, and the list if need be, with the keyboard.
void mnuViewFilterMacros_Click(Editor& editor);
/// The user wrote in the list: the box takes it.
void writeIntoFilter(Editor& editor, const std::string& typed);
/// Hides the box and shows all macros again. The keyboard goes back to the pane in front.
void closeFilter(Editor& editor);

} // namespace tarvex
