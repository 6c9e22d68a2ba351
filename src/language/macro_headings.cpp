#include "language/macro_headings.h"

#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::size_t ruleLength = 6;
constexpr std::string_view remRule = "rem --";
constexpr std::string_view boxTop = "~\xC9\xCD\xCD\xCD\xCD";
constexpr std::string_view boxBottom = "~\xC8\xCD\xCD\xCD\xCD";
constexpr char boxSide = '\xBA';

/// Whether the lines i and i + 2 begin with the rules, folded to one case.
template <typename Fold>
bool framed(const std::vector<std::string>& lines, std::size_t i, Fold fold, std::string_view top,
            std::string_view bottom)
{
    const auto start = [&](std::size_t line) { return fold(std::string_view(lines[line]).substr(0, ruleLength)); };
    return start(i) == top && start(i + 2) == bottom;
}

} // namespace

CommentKind commentKind(std::string_view line)
{
    if (line.starts_with('~')) return CommentKind::Tilde;
    return lowerWindows1252(line.substr(0, 4)) == "rem " ? CommentKind::Rem : CommentKind::None;
}

bool isHeadingAt(const std::vector<std::string>& lines, std::size_t i, CommentKind comment)
{
    if (comment == CommentKind::None || i + 3 >= lines.size()) return false;
    return comment == CommentKind::Rem ? framed(lines, i, lowerWindows1252, remRule, remRule)
                                       : framed(lines, i, upperWindows1252, boxTop, boxBottom);
}

void cutHeading(std::string& line, CommentKind comment)
{
    const std::size_t start = comment == CommentKind::Rem ? 3 : 2;
    if (line.size() >= start) line.erase(0, start);
    if (comment == CommentKind::Tilde && line.ends_with(boxSide)) line.pop_back();
    stripBlanks(line);
}

std::string headingCase(std::string_view words)
{
    return upperWindows1252(words.substr(0, 1)) + lowerWindows1252(words.size() > 1 ? words.substr(1) : "");
}

void stripBlanks(std::string& text)
{
    text.resize(text.find_last_not_of(' ') + 1); // npos + 1 is 0
    text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
}

} // namespace tarvex
