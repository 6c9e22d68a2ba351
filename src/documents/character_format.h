#pragma once

#include "platform/controls.h"

#include <compare>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

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

/// The formats that the panes of one program use, each kept once. At most 65,536: whoever asks for more gets format 0,
/// so that a damaged file can't take the memory.
class FormatTable {
public:
    FormatTable();
    FormatId idOf(const CharacterFormat& format);
    const CharacterFormat& operator[](FormatId id) const { return m_formats[id]; }
    std::size_t size() const { return m_formats.size(); }

private:
    struct Hash {
        std::size_t operator()(const CharacterFormat& format) const;
    };
    std::vector<CharacterFormat> m_formats;
    std::unordered_map<CharacterFormat, FormatId, Hash> m_ids;
};

} // namespace tarvex
