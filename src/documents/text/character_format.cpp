#include "documents/text/character_format.h"

#include <functional>

namespace tarvex {

std::size_t FormatTable::Hash::operator()(const CharacterFormat& format) const
{
    constexpr std::size_t factor = 1099511628211U;
    std::size_t hash = std::hash<std::string>{}(format.fontName);
    hash = hash * factor + static_cast<std::uint32_t>(format.colour);
    hash = hash * factor + std::hash<float>{}(format.fontSize);
    hash = hash * factor + static_cast<std::uint32_t>(format.indent);
    return hash * factor + (format.bold ? 1U : 0U) + (format.italic ? 2U : 0U) + (format.underline ? 4U : 0U);
}

FormatTable::FormatTable() { idOf(CharacterFormat{}); }

FormatId FormatTable::idOf(const CharacterFormat& format)
{
    if (const auto known = m_ids.find(format); known != m_ids.end()) return known->second;
    CharacterFormat kept = format;
    if (kept.fontName.size() > maximumFontName) kept.fontName.resize(maximumFontName);
    if (!(kept.fontSize == kept.fontSize))
        kept.fontSize = CharacterFormat{}.fontSize; // a number, so that it equals itself
    if (!(kept == format)) return idOf(kept);
    if (m_formats.size() == maximumSize) return 0;
    const auto id = static_cast<FormatId>(m_formats.size());
    m_formats.push_back(kept);
    m_ids.emplace(std::move(kept), id);
    return id;
}

FormatId FormatTable::withColour(FormatId id, Colour colour)
{
    const auto mixed = (static_cast<std::uint32_t>(colour) ^ (std::uint32_t{id} << 16U)) * 2654435769U;
    Recoloured& entry = m_recoloured[mixed >> 26U];
    if (entry.known && entry.from == id && entry.colour == colour) return entry.to;
    CharacterFormat format = m_formats[id];
    format.colour = colour;
    entry = {colour, id, idOf(format), true};
    return entry.to;
}

} // namespace tarvex
