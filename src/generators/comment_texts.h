#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tarvex {

// Lines of the comment blocks, as bytes of the pane, without line ends.

inline constexpr std::string_view titleBorder = "Rem ################################################";
inline constexpr std::string_view titleEmptyLine = "Rem";

/// "Rem ", blanks that put the text into the middle of the title block, and the text. A text that has no room between
/// the borders stands directly behind "Rem " and is not cut.
std::string centredTitleLine(std::string_view text);

/// The line above and below a heading; it is 20 dashes longer than the heading.
std::string headingRule(std::string_view heading);

/// The names that the lists of headings offer, UTF-8.
std::span<const std::string_view> headingNames();

} // namespace tarvex
