#pragma once

#include "composer/insert_options.h"

namespace tarvex {

// The forms: each inserts a whole line from its fields. An empty field gives a statement without that value.

/// Gives the buttons of the forms, of delays, remarks and blanks their captions and handlers.
void wireStatementTabs(InsertOptions& window);

void Command1_Click(InsertOptions& window, int Index);
void Command2_Click(InsertOptions& window, int Index);
void Command3_Click(InsertOptions& window);
void Command4_Click(InsertOptions& window);
void Command8_Click(InsertOptions& window, int Index);
void InsertANT_Click(InsertOptions& window);
void Command12_Click(InsertOptions& window, int Index);
void Command15_Click(InsertOptions& window, int Index);
void DlyRptButtons_Click(InsertOptions& window, int Index);
void CommandREM_Click(InsertOptions& window);
void Command10_Click(InsertOptions& window);
void Command7_Click(InsertOptions& window, int Index);

/// Empties the fields of all forms.
void emptyFields(InsertOptions& window);
/// Holds the toggle of one axis and releases the others.
void holdAxis(InsertOptions& window, std::size_t axis);

} // namespace tarvex
