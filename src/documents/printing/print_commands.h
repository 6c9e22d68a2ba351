#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Gives the print commands of the File menu their handlers.
void wirePrinting(Editor& editor);

void mnuFilePrintJoystick_Click(Editor& editor);
void mnuFilePrintMacro_Click(Editor& editor);
void mnuFilePrinterSetup_Click(Editor& editor);
/// Stands by for a command that prints whichever file is selected; nothing uses it yet.
void PrintCurrent(Editor& editor);

// Of the selected document.

void mnuFilePrintPreview_Click(Editor& editor);
void mnuFilePrintPdf_Click(Editor& editor);

} // namespace tarvex
