#include "controller_text.h"

#include <algorithm>
#include <cctype>
#include <regex>
#include <sstream>

namespace examples {

namespace {

std::string lowered(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return result;
}

std::string trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

bool startsWith(std::string_view text, std::string_view head) { return text.substr(0, head.size()) == head; }

bool isWordCharacter(std::string_view text, std::size_t at)
{
    return at < text.size() && (std::isalnum(static_cast<unsigned char>(text[at])) != 0 || text[at] == '_');
}

/// Where a whole word "rem" starts in a text that is in lower case, or npos.
std::size_t findRem(std::string_view folded)
{
    for (std::size_t at = folded.find("rem"); at != std::string_view::npos; at = folded.find("rem", at + 1)) {
        const bool wordBefore = at > 0 && isWordCharacter(folded, at - 1);
        if (!wordBefore && !isWordCharacter(folded, at + 3)) return at;
    }
    return std::string_view::npos;
}

constexpr std::string_view boxTop = "~\xC9\xCD\xCD\xCD\xCD";
constexpr std::string_view boxSide = "~\xBA";
constexpr std::string_view boxBottom = "~\xC8\xCD\xCD\xCD\xCD";

bool isRemRule(std::string_view line) { return startsWith(lowered(line), "rem --"); }

/// The lines the macro list looks at: blank ones and bare comment marks don't count.
std::vector<std::string> keptLines(const std::vector<std::string>& lines)
{
    std::vector<std::string> kept;
    for (const std::string& line : lines) {
        const std::string text = line.substr(std::min(line.find_first_not_of(' '), line.size()));
        const std::string folded = lowered(text);
        if (!text.empty() && folded != "rem" && text != "~" && text != "//") kept.push_back(text);
    }
    return kept;
}

bool isRemHeading(const std::vector<std::string>& kept, std::size_t at)
{
    return at + 2 < kept.size() && isRemRule(kept[at]) && startsWith(lowered(kept[at + 1]), "rem ") &&
           !isRemRule(kept[at + 1]) && isRemRule(kept[at + 2]);
}

bool isBoxHeading(const std::vector<std::string>& kept, std::size_t at)
{
    return at + 2 < kept.size() && startsWith(kept[at], boxTop) && startsWith(kept[at + 1], boxSide) &&
           startsWith(kept[at + 2], boxBottom);
}

/// The line of the bottom of the box whose top is at `top`, or `top` if its sides lead to none.
std::size_t bottomOfBox(const std::vector<std::string>& kept, std::size_t top)
{
    std::size_t at = top + 1;
    while (at < kept.size() && startsWith(kept[at], boxSide)) ++at;
    return at > top + 1 && at < kept.size() && startsWith(kept[at], boxBottom) ? at : top;
}

std::string headingText(std::string line, std::size_t lead)
{
    line.erase(0, lead);
    if (!line.empty() && line.back() == boxSide.back()) line.pop_back();
    return trimmed(line);
}

bool isCommentToTheMacroList(std::string_view line)
{
    return startsWith(line, "~") || startsWith(lowered(line), "rem ");
}

} // namespace

Problems lineEndProblems(std::string_view bytes)
{
    Problems problems;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (bytes[at] == '\r' && (at + 1 == bytes.size() || bytes[at + 1] != '\n'))
            problems.push_back("CR without LF at byte " + std::to_string(at));
        if (bytes[at] == '\n' && (at == 0 || bytes[at - 1] != '\r'))
            problems.push_back("LF without CR at byte " + std::to_string(at));
    }
    if (bytes.empty() || bytes.back() != '\n') problems.emplace_back("the last line has no end");
    return problems;
}

Problems byteProblems(std::string_view bytes)
{
    constexpr std::string_view unused = "\x7F\x81\x8D\x8F\x90\x9D";
    Problems problems;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const char c = bytes[at];
        const bool control = static_cast<unsigned char>(c) < 0x20 && c != '\r' && c != '\n';
        if (control || unused.find(c) != std::string_view::npos)
            problems.push_back("code " + std::to_string(static_cast<unsigned char>(c)) + " at byte " +
                               std::to_string(at));
    }
    return problems;
}

std::vector<std::string> linesOf(std::string_view bytes)
{
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        const auto end = std::min(bytes.find('\n'), bytes.size());
        std::string_view line = bytes.substr(0, end);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        lines.emplace_back(line);
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
    return lines;
}

std::string withoutComment(std::string_view line)
{
    const std::size_t end = std::min({findRem(lowered(line)), line.find('~'), line.find("//"), line.size()});
    line = line.substr(0, end);
    return std::string(line.substr(0, line.find_last_not_of(' ') + 1));
}

std::vector<std::string> statementsOf(const std::vector<std::string>& lines)
{
    std::vector<std::string> statements;
    for (const std::string& line : lines) {
        const std::string code = withoutComment(line);
        if (code.empty()) continue;
        if (code.front() == ' ' && !statements.empty())
            statements.back() += ' ' + trimmed(code);
        else
            statements.push_back(code);
    }
    return statements;
}

std::vector<MacroDefinition> definitionsOf(const std::vector<std::string>& lines)
{
    std::vector<MacroDefinition> definitions;
    for (const std::string& line : keptLines(lines)) {
        const auto equals = line.find('=');
        if (equals == std::string::npos || isCommentToTheMacroList(line)) continue;
        definitions.push_back({trimmed(line.substr(0, equals)), trimmed(withoutComment(line.substr(equals + 1)))});
    }
    return definitions;
}

Problems definitionProblems(const std::vector<std::string>& lines)
{
    static const std::regex form("[A-Za-z0-9_]+ = [^ ].*");
    Problems problems;
    for (const std::string& line : keptLines(lines)) {
        if (isCommentToTheMacroList(line)) continue;
        if (!std::regex_match(withoutComment(line), form)) problems.push_back("no macro definition: " + line);
    }
    return problems;
}

std::vector<std::string> headingsOf(const std::vector<std::string>& lines)
{
    const std::vector<std::string> kept = keptLines(lines);
    std::vector<std::string> headings;
    for (std::size_t at = 0; at < kept.size(); ++at) {
        const bool rem = isRemHeading(kept, at);
        if (!rem && !isBoxHeading(kept, at)) continue;
        headings.push_back(headingText(kept[at + 1], rem ? 3 : 2));
        at += 2;
    }
    return headings;
}

Problems headingProblems(const std::vector<std::string>& lines)
{
    const std::vector<std::string> kept = keptLines(lines);
    Problems problems;
    for (std::size_t at = 0; at < kept.size(); ++at) {
        const bool box = startsWith(kept[at], boxTop) || startsWith(kept[at], boxBottom);
        if (!box && !isRemRule(kept[at])) continue;
        const std::size_t bottom = box ? bottomOfBox(kept, at) : isRemHeading(kept, at) ? at + 2 : at;
        if (bottom == at) problems.push_back("stray rule line: " + kept[at]);
        // The macro list wants one more line behind the closing rule.
        if (bottom + 1 == kept.size()) problems.push_back("heading at the very end: " + kept[at]);
        at = bottom;
    }
    return problems;
}

Problems bracketProblems(std::string_view code)
{
    static const std::regex empty(R"((RAW ?|DLY|RPT)\( *\))");
    int open = 0;
    for (const char c : code) {
        open += c == '(' ? 1 : c == ')' ? -1 : 0;
        if (open < 0) return {"closed before opened: " + std::string(code)};
    }
    if (open > 0) return {"not closed: " + std::string(code)};
    if (std::regex_search(std::string(code), empty)) return {"empty brackets: " + std::string(code)};
    return {};
}

std::vector<std::string> rawGroupsOf(std::string_view code)
{
    static const std::regex group(R"(RAW ?\(([^)]*)\))");
    const std::string text(code);
    std::vector<std::string> groups;
    for (std::sregex_iterator match(text.begin(), text.end(), group), end; match != end; ++match)
        groups.push_back((*match)[1]);
    return groups;
}

std::vector<std::string> wordsOf(std::string_view code)
{
    static const std::regex bracketed(R"((RAW ?|DLY|RPT)\([^)]*\))");
    std::istringstream stream(std::regex_replace(std::string(code), bracketed, " "));
    std::vector<std::string> words;
    for (std::string word; stream >> word;) words.push_back(word);
    return words;
}

} // namespace examples
