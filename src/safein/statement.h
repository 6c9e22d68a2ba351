#pragma once

#include "safein/raw_form.h"

namespace tarvex {

// The statement, TotalCombinedText, and what goes from the fields into a pane.

/// Captions and handlers of the buttons around the fields.
void wireStatement(RAWform& window);

/// Gives the statement its background.
void FormatCombinedText(RAWform& window);
void Command5_Click(RAWform& window);
void Command10_Click(RAWform& window, int Index);
void Command3_Click(RAWform& window, int Index);
void mnuDelayValue_Click(RAWform& window, int Index);
void Command6_Click(RAWform& window);
void Command7_Click(RAWform& window);
void Command4_Click(RAWform& window);
void CommandPasteJ_Click(RAWform& window, int Index);
void TotalCombinedText_Change(RAWform& window);

} // namespace tarvex
