#pragma once

#include "documents/pair/editor.h"

#include <optional>
#include <string>

namespace tarvex {

/// The bytes of a file that is to be opened; nothing when it can't be read or is larger than 64 MB, and the user was
/// informed.
std::optional<std::string> readForOpening(Editor& editor, const std::string& path, const std::string& name);

/// Puts a file into its pane: from its coloured shadow when that still has the same plain text, else plain, laid out
/// anew and, where the settings ask for it, coloured. Name, path, tab and state of the document follow; its tab is
/// selected. The caller keeps a Loading.
void showDocument(Editor& editor, Side& side, const std::string& path, const std::string& name,
                  const std::string& bytes);

/// Adds to the status text what the user should know of the files that were opened last: line ends that a save will
/// change, colouring that couldn't be finished.
void showOpeningRemarks(Editor& editor);

/// Writes the pane's text as the document's file.
void writePlain(Editor& editor, const Side& side, const std::string& path);
/// Writes it as a copy that only the user may access: the document itself may be private.
void writePlainCopy(Editor& editor, const Side& side, const std::string& path);
/// Writes the pane's text with its colours into the shadow of the document's name, for the user alone. A failure is
/// recorded but not shown: a shadow can always be made anew.
void SaveColouredTextJF(Editor& editor);
void SaveColouredTextMF(Editor& editor);
void saveColouredText(Editor& editor, const Side& side);

} // namespace tarvex
