#pragma once

#include "safein/raw_form.h"

namespace tarvex {

/// Handlers of the options menu.
void wireSafeinOptions(RAWform& window);
void mnuOption1_Click(RAWform& window, int Index);
void mnuUseExtendedRAW_Click(RAWform& window);
void GetSafeinOptions(RAWform& window);
void SaveSafeinOptions(RAWform& window);
/// The row of slash modifiers with DLY() and Rem.
void showSlashRow(RAWform& window, bool on);

} // namespace tarvex
