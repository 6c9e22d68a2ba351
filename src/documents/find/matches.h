#pragma once

#include "documents/find/find_window.h"

#include <optional>
#include <string>

namespace tarvex {

/// A text that the user wrote, in bytes of a pane. Nothing when it has characters that no pane can hold.
std::optional<std::string> soughtBytes(const std::string& text);

/// Marks all matches of a text in both documents.
void markMatches(Editor& editor, const std::string& text, int options);
/// Marks what the open page of the window seeks; nothing while it is closed, or on the page for
/// lines. Leaves the marks of the find bar alone.
void markFormMatches(FindAndReplace& window);

/// The word that is selected in the document in front, UTF-8. Empty when nothing is selected, or more than a word.
std::string selectedWord(Editor& editor);

} // namespace tarvex
