#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

// Headings of a macro file stand between two rule lines, in the Rem form ("Rem ----") or in a box of double lines
// behind "~". All texts are bytes of the file.

/// The comments that the macro analysis knows; "//" isn't one of them.
enum class CommentKind { None, Rem, Tilde };
CommentKind commentKind(std::string_view line);

/// Whether line i is the upper rule of a heading. `comment` is that line's kind. A heading whose lower rule is the last
/// line isn't taken: nothing stands below it.
bool isHeadingAt(const std::vector<std::string>& lines, std::size_t i, CommentKind comment);

/// Cuts a heading's line down to its words: the comment's start goes (a line too short for that keeps it), the side of
/// the box, and the blanks at both ends.
void cutHeading(std::string& line, CommentKind comment);
/// First letter upper case, all others lower case.
std::string headingCase(std::string_view words);

/// Takes the blanks (not tabs) from both ends.
void stripBlanks(std::string& text);

} // namespace tarvex
