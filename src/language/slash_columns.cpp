#include "language/slash_columns.h"

#include "platform/lines.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <initializer_list>

namespace tarvex {

namespace {

constexpr std::size_t mostBlanks = 69;

bool startsInAnyCase(std::string_view line, std::string_view lowerWord)
{
    return lowerWindows1252(line.substr(0, lowerWord.size())) == lowerWord;
}

/// Without tabs and leading blanks, and with one blank where there were several.
std::string squeezed(std::string_view line)
{
    std::string text;
    for (const char character : line) {
        if (character == '\t') continue;
        if (character == ' ' && (text.empty() || text.back() == ' ')) continue;
        text += character;
    }
    return text;
}

/// Column of the first of the modifiers that the line holds at all, 0 without any.
std::size_t columnOf(std::string_view line, std::initializer_list<std::string_view> modifiers)
{
    for (const std::string_view modifier : modifiers) {
        if (const std::size_t at = line.find(modifier); at != line.npos) return at + 1;
    }
    return 0;
}

void remember(std::size_t& column, std::size_t found)
{
    if (found != 0) column = found;
}

} // namespace

void SlashColumns::rememberStatement(std::string_view line)
{
    remember(m_dogfight, columnOf(line, {"/U", "/M", "/D"}));
    remember(m_s3, columnOf(line, {"/I", "/O"}));
    remember(m_press, columnOf(line, {"/P", "/R"}));
    remember(m_toggle, columnOf(line, {"/T"}));
}

/// A modifier stands below its counterpart in the last line that had one, or else in the statement's first line.
std::size_t SlashColumns::columnFor(std::string_view line) const
{
    struct Rule {
        std::string_view modifier;
        std::string_view counterpart;
        std::size_t otherwise;
    };
    const Rule rules[] = {
        {"/I", "/O", m_s3}, {"/O", "/I", m_s3}, {"/P", "/R", m_press}, {"/R", "/P", m_press}, {"/T", "/T", m_toggle}};
    for (const auto& [modifier, counterpart, otherwise] : rules) {
        if (!line.starts_with(modifier)) continue;
        const std::size_t below = columnOf(m_lastWithSlash, {counterpart});
        return below != 0 ? below : otherwise;
    }
    const bool isStatement = startsInAnyCase(line, "btn");
    return !isStatement && columnOf(line, {"/U", "/M", "/D"}) != 0 ? m_dogfight : 0;
}

std::string SlashColumns::aligned(std::string_view line)
{
    if (startsInAnyCase(line, "rem") || line.starts_with('~')) return std::string(line);
    std::string text = squeezed(line);
    if (startsInAnyCase(text, "btn")) rememberStatement(text);
    const std::size_t column = columnFor(text);
    if (column > 1) text.insert(0, std::min(column - 1, mostBlanks), ' ');
    if (text.find('/') != std::string::npos) m_lastWithSlash = text;
    if (m_indent > 0) text.insert(0, static_cast<std::size_t>(m_indent), ' ');
    return text;
}

std::string alignedText(std::string_view text, int indent)
{
    SlashColumns columns(indent);
    std::string result;
    for (const std::string_view line : linesOf(text)) (result += columns.aligned(line)) += "\r\n";
    return result;
}

} // namespace tarvex
