#pragma once

#include <QString>

#include <string>
#include <string_view>

// The characters of a pane as a text document shows them. One byte is one character, only the two bytes of a line end
// become the one separator between two blocks. Control characters, which no font has, show as control pictures.

namespace tarvex {

/// Line ends become QChar::ParagraphSeparator.
QString documentText(std::string_view bytes);

struct PaneText {
    std::string bytes; ///< line ends are CR LF
    bool exact = true; ///< false: the document has to show something else than was put into it
};
/// Converts user input to the bytes of a pane: characters that Windows-1252 lacks become "?", every kind of line
/// separator becomes a line end. Decomposed letters are composed first.
PaneText paneText(const QString& text);

} // namespace tarvex
