#pragma once

#include "documents/text/character_format.h"
#include "documents/text/rtf/rtf_code_pages.h"

#include <compare>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

// The tables of an RTF file, and how its characters look in their terms.

namespace tarvex {

/// Names of the font table. They are asked for by the index in which they came.
class RtfFonts {
public:
    static constexpr int defaultFont = -1; ///< index that stands for the font of `defaultNumber`

    int defaultNumber = 0;

    /// The file's number of the name that comes next.
    void number(int number) { m_number = number; }
    void setCodePage(RtfCodePage page) { m_font.codePage = page; }
    void add(char c);
    void end();
    /// A name without its ";" ends with its group.
    void endIfBegun();
    /// Index of a font by the file's number; defaultFont for an unknown one.
    int indexOf(int number) const;
    /// Null when the file has no such font.
    const std::string* name(int index) const;
    /// rtfCodePage::ofFile when the file has no such font or the font names none.
    RtfCodePage codePage(int index) const;

private:
    struct Font {
        std::string name;
        RtfCodePage codePage = rtfCodePage::ofFile;
    };
    const Font* find(int index) const;

    std::vector<Font> m_fonts;
    std::unordered_map<int, int> m_index;
    Font m_font; ///< the one that is being read
    int m_number = 0;
    bool m_begun = false;
};

/// Entries of the colour table, made of components 0 (red) to 2 (blue).
class RtfColours {
public:
    void component(int which, int value);
    /// Ends the entry, and as many empty ones as make `count` in all.
    void end(std::size_t count);
    Colour at(int index) const;

private:
    std::vector<Colour> m_colours;
    Colour m_colour = 0;
};

struct RtfLook {
    int font = RtfFonts::defaultFont;
    Colour colour = 0;
    float size = 12;
    int indent = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    auto operator<=>(const RtfLook&) const = default;
};

/// Numbers of the looks in a table of formats.
class RtfLooks {
public:
    explicit RtfLooks(std::shared_ptr<FormatTable> formats) : m_formats(std::move(formats)) {}

    RtfFonts fonts;
    RtfColours colours;

    FormatId numberOf(const RtfLook& look);

private:
    std::shared_ptr<FormatTable> m_formats;
    std::map<RtfLook, FormatId> m_known;
};

} // namespace tarvex
