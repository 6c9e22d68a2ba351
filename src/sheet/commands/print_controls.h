#pragma once

#include "documents/pair/editor.h"
#include "sheet/sheet_layout.h"

namespace tarvex {

class Printer;

/// Gives the command its handler.
void wireControlSheet(Editor& editor);

/// Asks whether the sheet of the open pair is to be seen and printed, or saved as a file.
void mnuFilePrintControls_Click(Editor& editor);

/// The paper that fits what the printer has in it.
SheetPaper sheetPaper(const Printer& printer);
/// The pages on the printer, which lies on its long side; each as large as its printable area.
void printSheet(Printer& printer, const std::vector<LaidOutPage>& pages);

} // namespace tarvex
