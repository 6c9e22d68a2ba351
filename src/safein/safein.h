#pragma once

#include "safein/raw_form.h"

namespace tarvex {

/// Gives the command of the menu and the window's controls their handlers.
void wireSafein(RAWform& window);

void Form_Load(RAWform& window);
void Form_Unload(RAWform& window);
bool Form_KeyDown(RAWform& window, int key, int shift);

void SavePosition(RAWform& window);
void PositionSafein(RAWform& window);
void UpdateTooltips(RAWform& window);

} // namespace tarvex
