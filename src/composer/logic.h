#pragma once

#include "composer/insert_options.h"

#include <string_view>

namespace tarvex {

// The Flag tab. Texts are bytes, as panes hold them.

void wireLogic(InsertOptions& window);
/// Fills the lists that terms are chosen from.
void FillLogicLists(InsertOptions& window);
/// Empties the definitions and what terms are made of, and chooses the first definition.
void emptyDefinitions(InsertOptions& window);
/// Notes in CurrentFlag which definition is chosen.
void WhichLogicText(InsertOptions& window);
/// The chosen definition's field is white, the others have the form's colour.
void ColourFlagTextBack(InsertOptions& window);

void OptionFlag_Click(InsertOptions& window, int Index);
/// The keyboard came to the field of a definition, which is thereby chosen.
void RichTexFlag_GotFocus(InsertOptions& window, int Index);
void CMDCompare_Click(InsertOptions& window, int Index);
void CMDFlagSlash_Click(InsertOptions& window, int Index);
void CMDFlagInsert_Click(InsertOptions& window, int Index);
/// 0 inserts all definitions, 1 the chosen one, 2 reads those of the joystick file back.
void Command13_Click(InsertOptions& window, int Index);

} // namespace tarvex
