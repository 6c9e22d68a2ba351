#include "language/statements.h"

#include <algorithm>

namespace tarvex {

namespace {

struct StatementWord {
    std::string_view word;
    int options = find::wholeWord;
};

constexpr StatementWord statementWords[] = {
    {"BTN"},      {"RNG", find::wholeWord | find::matchCase},
    {"ANT"},      {"MDEF"},
    {"JSX"},      {"JSY"},
    {"PORTB", 0}, {"USE"},
    {"RATE"},     {"SWAPTG"},
    {"THR"},      {"RDDR"},
};

/// Where the next statement begins, or the end of the text.
std::int64_t nextStatement(Pane& pane, std::int64_t after)
{
    constexpr std::int64_t farAway = 100'000'000;
    std::int64_t next = farAway;
    for (const auto& [word, options] : statementWords) {
        const std::int64_t position = pane.Find(word, after, Pane::toEnd, options);
        if (position >= 0) next = std::min(next, position);
    }
    return next == farAway ? static_cast<std::int64_t>(pane.TextLength()) : next;
}

std::int64_t withoutLineEnds(std::string_view text, std::int64_t begin, std::int64_t end)
{
    const std::string_view statement = text.substr(0, static_cast<std::size_t>(end));
    const auto last = static_cast<std::int64_t>(statement.find_last_not_of("\r\n")) + 1; // npos + 1 is 0
    return std::max(last, begin);
}

} // namespace

bool selectStatement(Pane& pane, std::string_view head, const Steps& step)
{
    const auto length = static_cast<std::int64_t>(head.size());
    const std::int64_t start = pane.Find(head, 0, Pane::toEnd, find::wholeWord);
    if (start < 0) return false;
    const std::int64_t next = withoutLineEnds(pane.Text(), start + length, nextStatement(pane, start + length));
    pane.setSelStart(start);
    if (head.starts_with("PortB")) step([&] { pane.setSelStart(start - 4); }); // with the "BTN " before it
    pane.setSelLength(next - start);
    return true;
}

} // namespace tarvex
