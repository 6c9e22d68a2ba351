// Takes a controller file's text apart, just far enough to check the files in examples/.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace examples {

/// What is wrong with a text, one sentence each, with the place; none if nothing is.
using Problems = std::vector<std::string>;

/// A macro file's line "name = body", both without outer blanks, comments cut off.
struct MacroDefinition {
    std::string name;
    std::string body;
};

/// Every CR without an LF, every LF without a CR, and a last line without an end.
Problems lineEndProblems(std::string_view bytes);
/// Every byte that is no character of Windows-1252, and every control code but CR and LF.
Problems byteProblems(std::string_view bytes);
/// The lines of a text, at each LF, without their CR LF.
std::vector<std::string> linesOf(std::string_view bytes);
/// The line up to its first "Rem" (whole word, any case), "~" or "//", without trailing blanks.
std::string withoutComment(std::string_view line);
/// The statements of a joystick file: a line that starts with no blank and the lines with blanks in front
/// that follow it, joined by one blank. Comments are cut off, and lines of nothing else are left out.
std::vector<std::string> statementsOf(const std::vector<std::string>& lines);
/// The lines with "=" that are no comments, as the macro list takes them: "Rem " and "~" make a comment, "//" doesn't.
std::vector<MacroDefinition> definitionsOf(const std::vector<std::string>& lines);
/// A definition whose name holds a blank, or is not followed by exactly one blank and "=", or has no body.
Problems definitionProblems(const std::vector<std::string>& lines);
/// The headings of a macro file, in either form, as they are written.
std::vector<std::string> headingsOf(const std::vector<std::string>& lines);
/// A rule line of either form that is neither the top nor the bottom of a heading or of a longer box.
Problems headingProblems(const std::vector<std::string>& lines);
/// Brackets that are not closed, or closed before they are opened, and empty "RAW(", "DLY(" or "RPT(".
Problems bracketProblems(std::string_view code);
/// The insides of every "RAW (" or "RAW(", from bracket to bracket.
std::vector<std::string> rawGroupsOf(std::string_view code);
/// The words of a statement between blanks, without raw codes and without timed items like "DLY(60)".
std::vector<std::string> wordsOf(std::string_view code);

} // namespace examples
