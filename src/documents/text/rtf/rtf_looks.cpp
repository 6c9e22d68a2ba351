#include "documents/text/rtf/rtf_looks.h"

#include <algorithm>
#include <utility>

namespace tarvex {
namespace {

// Bounds of the memory that a damaged file can take.
constexpr std::size_t mostColours = 65536;
constexpr std::size_t mostKnownLooks = 65536;

} // namespace

void RtfFonts::add(char c)
{
    if (m_font.name.size() < FormatTable::maximumFontName) m_font.name += c;
    m_begun = true;
}

void RtfFonts::end()
{
    m_index.insert_or_assign(m_number, static_cast<int>(m_fonts.size()));
    m_fonts.push_back(std::exchange(m_font, {}));
    m_begun = false;
}

void RtfFonts::endIfBegun()
{
    if (m_begun) end();
}

int RtfFonts::indexOf(int number) const
{
    const auto entry = m_index.find(number);
    return entry == m_index.end() ? defaultFont : entry->second;
}

const RtfFonts::Font* RtfFonts::find(int index) const
{
    if (index == defaultFont) index = indexOf(defaultNumber);
    return index == defaultFont ? nullptr : &m_fonts[static_cast<std::size_t>(index)];
}

const std::string* RtfFonts::name(int index) const
{
    const Font* font = find(index);
    return font ? &font->name : nullptr;
}

RtfCodePage RtfFonts::codePage(int index) const
{
    const Font* font = find(index);
    return font ? font->codePage : rtfCodePage::ofFile;
}

void RtfColours::component(int which, int value)
{
    const int shift = 8 * which;
    m_colour = (m_colour & ~(255 << shift)) | std::clamp(value, 0, 255) << shift;
}

void RtfColours::end(std::size_t count)
{
    for (; count > 0 && m_colours.size() < mostColours; --count) m_colours.push_back(std::exchange(m_colour, 0));
}

Colour RtfColours::at(int index) const
{
    const auto entry = static_cast<std::size_t>(index); // of a negative one beyond any table
    return entry < m_colours.size() ? m_colours[entry] : 0;
}

FormatId RtfLooks::numberOf(const RtfLook& look)
{
    if (const auto known = m_known.find(look); known != m_known.end()) return known->second;
    CharacterFormat format;
    if (const std::string* name = fonts.name(look.font)) format.fontName = *name;
    format.colour = look.colour;
    format.fontSize = look.size;
    format.bold = look.bold;
    format.italic = look.italic;
    format.underline = look.underline;
    format.indent = look.indent;
    const FormatId id = m_formats->idOf(format);
    if (m_known.size() < mostKnownLooks) m_known.emplace(look, id);
    return id;
}

} // namespace tarvex
