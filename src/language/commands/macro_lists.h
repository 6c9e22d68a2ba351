#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Fills Combo1 and List1 from MacroFileLines and shows on the status bar what was found.
void ExtractMacrosAndTitles(Editor& editor);
/// Empties the headings and lists.
void ClearAllForNewMacroFile(Editor& editor);
/// The heading "All" is chosen again: Combo1 shows it, and its list comes to the front.
void showAllMacros(Editor& editor);
/// Makes one list the visible one.
void bringToFront(FrameMacros& frame, std::size_t list);

} // namespace tarvex
