#pragma once

#include "safein/raw_form.h"

namespace tarvex {

/// Captions and handlers of the keys and toggles.
void wireKeyPad(RAWform& window);
/// All toggles released.
void resetKeyPad(RAWform& window);

void Command1_Click(RAWform& window, int Index);
/// Computes the texts of the key that was clicked last.
void GetKeystrings(RAWform& window);
/// The words of what is held on the pad.
void GetModifier(RAWform& window);
/// Shows what the results of the computation are.
void showKeystrings(RAWform& window);
void blankKeyFields(RAWform& window);

/// A real key at the place of a drawn one, with what is really held beside it: its texts are shown and it is lit. The
/// toggles stay as they are.
void captureKey(RAWform& window, int index, int shift);
/// Ctrl+Esc: its Ctrl was no key to look up, so the texts of the key before it come back.
void endCapture(RAWform& window);

/// Reads RawToRead backwards.
void readRaw(RAWform& window);
/// Raw codes that are selected in the pane are there to be read, unless they are too many for a line.
void readSelection(RAWform& window);

} // namespace tarvex
