#pragma once

#include "documents/pair/editor.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvex {

/// The bytes of a file that is to be opened; nothing when it can't be read or is larger than 64 MB, and the user was
/// informed. A failure is on record under `tag`.
std::optional<std::string> readForOpening(Editor& editor, const std::string& path, const std::string& name,
                                          std::string_view tag = "ED_readForOpening");

/// Reads a file and shows it in its pane. False: it can't be read or is larger than 64 MB; the user was informed, and
/// nothing changed.
bool loadFile(Editor& editor, Side& side, const std::string& path, const std::string& name);
/// Shows `bytes` as the contents of a file: its text as showText does, and a macro file's macros.
void showFile(Editor& editor, Side& side, const std::string& path, const std::string& name, const std::string& bytes);
/// The text alone: from the coloured shadow when that still has the same plain text, else plain, laid out anew and,
/// where the settings ask for it, coloured. Name, path, tab and state of the document follow; its tab is selected, and
/// undo and journal start anew. The caller keeps a Loading.
void showText(Editor& editor, Side& side, const std::string& path, const std::string& name, const std::string& bytes);

/// What the user should know of a file in UTF-16: the next save writes Windows-1252, the only text that a loader reads.
/// Empty for any other file.
std::string utf16Remark(const std::string& name, std::string_view bytes);
/// Adds to the status text what the user should know of the files that were opened last: a text in UTF-16 and line
/// ends that a save will change, colouring that couldn't be finished.
void showOpeningRemarks(Editor& editor);

} // namespace tarvex
