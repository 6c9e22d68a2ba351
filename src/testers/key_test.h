#pragma once

#include "testers/key_test_form.h"

namespace tarvex {

void wireKeyTest(KeyTestForm& window);

void Form_Load(KeyTestForm& window);
void Form_Unload(KeyTestForm& window);

// Keys: Windows' numbers of keys, sums of shiftKey, characters of Windows-1252.
void Form_KeyDown(KeyTestForm& window, int keyCode, int shift);
void Form_KeyPress(KeyTestForm& window, int keyAscii);
void Form_KeyUp(KeyTestForm& window, int keyCode, int shift);
/// Another window has the keyboard: the ups of the keys that are held go there.
void keyboardLost(KeyTestForm& window);

void ClearTextBoxes(KeyTestForm& window);
void TurnOffCapsLOCK(KeyTestForm& window);
void mnuClear500_Click(KeyTestForm& window, int index);

} // namespace tarvex
