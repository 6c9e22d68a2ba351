#pragma once

#include "platform/controls.h"

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <unordered_map>

namespace tarvex {

/// How one character looks.
struct CharacterFormat {
    Colour colour = 0;
    std::string fontName = "Arial";
    float fontSize = 10; ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    int indent = 0; ///< left indent of the paragraph that the character stands in, twips

    bool operator==(const CharacterFormat&) const = default;
};

/// Number of a format in a FormatTable.
using FormatId = std::uint16_t;

/// The formats that the panes of one program use, each kept once. A damaged file can't take the memory: there are at
/// most 65,536; beyond that the answer is format 0; a font name is cut to 255 bytes.
class FormatTable {
public:
    static constexpr std::size_t maximumSize = 65536;
    static constexpr std::size_t maximumFontName = 255;

    FormatTable();
    FormatId idOf(const CharacterFormat& format);
    /// The format `id` in another colour. Quicker than idOf: painting asks for the same few over and over.
    FormatId withColour(FormatId id, Colour colour);
    /// Stays where it is as long as the table lives.
    const CharacterFormat& operator[](FormatId id) const { return m_formats[id]; }
    std::size_t size() const { return m_formats.size(); }

private:
    struct Hash {
        std::size_t operator()(const CharacterFormat& format) const;
    };
    struct Recoloured {
        Colour colour = 0;
        FormatId from = 0;
        FormatId to = 0;
        bool known = false;
    };
    std::deque<CharacterFormat> m_formats;
    std::unordered_map<CharacterFormat, FormatId, Hash> m_ids;
    std::array<Recoloured, 64> m_recoloured;
};

} // namespace tarvex
