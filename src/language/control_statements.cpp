#include "language/control_statements.h"

#include "platform/windows1252.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tarvex {

namespace {

/// Words whose statements belong to a control by themselves.
constexpr std::array<std::string_view, 8> axisWords{"RNG", "ANT", "THR", "JSX", "JSY", "RDDR", "SWAPTG", "RKR"};
/// Words that begin a statement of another kind.
constexpr std::array<std::string_view, 6> otherWords{"USE", "MDEF", "RATE", "NULLCHR", "DEF", "@DIGITALTHROTTLE"};

bool isBlank(char letter) { return letter == ' ' || letter == '\t'; }

/// Takes the next word off a line, in upper case.
std::string takeWord(std::string_view& line)
{
    while (!line.empty() && isBlank(line.front())) line.remove_prefix(1);
    const auto end = static_cast<std::size_t>(std::ranges::find_if(line, isBlank) - line.begin());
    const std::string word = upperWindows1252(line.substr(0, end));
    line.remove_prefix(end);
    return word;
}

template <std::size_t count> bool isOneOf(const std::array<std::string_view, count>& words, std::string_view word)
{
    return std::ranges::find(words, word) != words.end();
}

bool saysNothing(std::string_view line)
{
    const std::string first = takeWord(line);
    return first.empty() || first == "REM" || first.starts_with('~') || first.starts_with("//");
}

bool isPort(std::string_view word) { return word.size() == 6 && word.starts_with("PORTB"); }

/// The head of the statement that a line begins with; empty for one of no control, nothing for a line that begins none.
std::optional<std::string> headOf(std::string_view line)
{
    const std::string first = takeWord(line);
    if (first == "BTN") {
        const std::string name = takeWord(line);
        return isPort(name) ? name : "BTN " + name;
    }
    if (first == "RKR") return "RKR " + takeWord(line);
    if (isOneOf(axisWords, first) || isPort(first)) return first;
    if (isOneOf(otherWords, first)) return std::string();
    return std::nullopt;
}

struct OpenStatement {
    std::string head; ///< empty: none that counts
    std::int64_t line = 0;
    std::size_t begin = 0;
    std::size_t end = 0;
};

} // namespace

std::map<std::string, ControlStatement, std::less<>> controlStatements(std::string_view text)
{
    std::map<std::string, ControlStatement, std::less<>> statements;
    OpenStatement open;
    const auto close = [&] {
        if (open.head.empty()) return;
        statements.try_emplace(open.head, ControlStatement{std::string(text.substr(open.begin, open.end - open.begin)),
                                                           open.line, static_cast<std::int64_t>(open.begin)});
    };
    std::int64_t number = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        ++number;
        const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
        const std::string_view line = text.substr(begin, end - begin);
        if (!saysNothing(line)) {
            if (auto head = headOf(line)) {
                close();
                open = {std::move(*head), number, begin, end};
            }
            open.end = end;
        }
        begin = end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
    }
    close();
    return statements;
}

} // namespace tarvex
