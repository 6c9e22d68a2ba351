#pragma once

#include "documents/pair/editor.h"
#include "documents/text/pane.h"
#include "platform/printers.h"

#include <string>

namespace tarvex {

// What the windows with a pane have in common when they print it. `name` is what the window calls the document, UTF-8.

/// The whole document: name and date, the text, and at the foot of each page what the user wants there.
PrintJob printJob(Editor& editor, const Pane& pane, const std::string& name);

/// False, and a box says so, when there is no printer to print to.
bool hasPrinter(Editor& editor);
/// Shows the user, in the status bar and a box, what failed and why.
void reportPaperFailure(Editor& editor, const std::string& what, const std::string& why);
/// Prints the document, with words in the status bar. A failure is recorded, and shown in a box.
void printPane(Editor& editor, const Pane& pane, const std::string& name);
/// Shows the pages; an empty document has none to show.
void previewPane(Editor& editor, const Pane& pane, const std::string& name);
/// Asks for a file and writes the document into it. `filePath` is the document's own file or empty.
void savePaneAsPdf(Editor& editor, const Pane& pane, const std::string& name, const std::string& filePath);

/// Asks for a file of this kind and writes `bytes()` into it; nothing when the user cancels. `extension` has no dot.
/// A failure is recorded under the tag of printing, and shown in a box.
void saveExport(Editor& editor, const FileRequest& request,
                const std::function<std::string(const std::string&)>& bytes);

} // namespace tarvex
