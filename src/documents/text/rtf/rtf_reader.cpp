#include "documents/text/rtf/rtf.h"
#include "documents/text/rtf/rtf_code_pages.h"
#include "documents/text/rtf/rtf_looks.h"
#include "documents/text/rtf/rtf_text.h"
#include "documents/text/rtf/rtf_tokens.h"
#include "documents/text/rtf/rtf_words.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>
#include <utility>

namespace tarvex {
namespace {

constexpr std::size_t deepest = 1000; // groups within groups; what is deeper is skipped

/// State that a group inherits and restores at its end.
struct Group {
    enum class Holds { Text, Fonts, Colours, Nothing };
    RtfLook look;
    Holds holds = Holds::Text;
    bool hidden = false;
    bool deleted = false;
    int unicodeSkip = 1; ///< characters that stand for a Unicode one in readers that don't know it
};

class RtfReader {
public:
    RtfReader(std::string_view rtf, const std::shared_ptr<FormatTable>& formats)
        : m_tokens(rtf), m_formats(formats), m_looks(formats)
    {
    }

    RichText read()
    {
        for (RtfToken token = m_tokens.next(); token.kind != RtfToken::Kind::End; token = m_tokens.next()) {
            if (token.kind == RtfToken::Kind::Open) {
                open();
            } else if (token.kind == RtfToken::Kind::Close) {
                close();
                if (m_groups.empty()) break;
            } else if (m_tooDeep == 0) {
                take(token);
            }
        }
        return m_text.take(m_formats);
    }

private:
    Group& group() { return m_groups.back(); }
    RtfLook& look() { return m_groups.back().look; }

    /// Where a token stands; "\*" only counts as a group's first one, and only for the word behind it.
    enum class Place { GroupStart, BehindStar, Elsewhere };

    void open()
    {
        m_toSkip = 0;
        m_next = Place::GroupStart;
        m_decoder.interrupt();
        if (m_groups.size() == deepest) {
            ++m_tooDeep;
            return;
        }
        m_groups.push_back(m_groups.empty() ? Group{} : m_groups.back());
    }

    void close()
    {
        m_toSkip = 0;
        m_next = Place::Elsewhere;
        m_decoder.interrupt();
        if (m_tooDeep > 0) {
            --m_tooDeep;
            return;
        }
        if (group().holds == Group::Holds::Fonts) m_looks.fonts.endIfBegun();
        m_groups.pop_back();
    }

    void take(const RtfToken& token)
    {
        m_place = std::exchange(m_next, Place::Elsewhere);
        if (m_toSkip > 0 && token.kind != RtfToken::Kind::Text) {
            --m_toSkip;
            return;
        }
        switch (token.kind) {
        case RtfToken::Kind::Text:
            text(token.text);
            break;
        case RtfToken::Kind::Byte:
            encodedByte(static_cast<char>(token.value));
            break;
        case RtfToken::Kind::Symbol:
            symbol(token.text.front());
            break;
        case RtfToken::Kind::Word:
            word(token);
            break;
        default:
            break;
        }
    }

    // ---- characters -------------------------------------------------------------------------------------------------

    void text(std::string_view characters)
    {
        const std::size_t skipped = std::min(characters.size(), m_toSkip);
        m_toSkip -= skipped;
        characters.remove_prefix(skipped);
        switch (group().holds) {
        case Group::Holds::Text:
            add(decoded(characters));
            break;
        case Group::Holds::Fonts:
            for (const char c : characters) c == ';' ? m_looks.fonts.end() : m_looks.fonts.add(c);
            break;
        case Group::Holds::Colours:
            m_looks.colours.end(static_cast<std::size_t>(std::ranges::count(characters, ';')));
            break;
        case Group::Holds::Nothing:
            break;
        }
    }

    std::string decoded(std::string_view bytes)
    {
        const RtfCodePage page = m_looks.fonts.codePage(look().font);
        return m_decoder.decode(bytes, page == rtfCodePage::ofFile ? m_codePage : page);
    }

    /// A byte of the code page that holds here.
    void encodedByte(char c)
    {
        if (group().holds != Group::Holds::Text) return character(c);
        for (const char known : decoded({&c, 1})) character(known);
    }

    /// A character of Windows-1252.
    void character(char c)
    {
        if (group().holds == Group::Holds::Fonts) {
            m_looks.fonts.add(c);
        } else if ((c == '\r' || c == '\n') && isShown()) {
            m_text.addLineEndByte(c, format());
        } else {
            add({&c, 1});
        }
    }

    bool isShown() { return group().holds == Group::Holds::Text && !group().hidden && !group().deleted; }

    void add(std::string_view characters)
    {
        if (characters.empty()) return;
        m_afterHighSurrogate = false;
        if (isShown()) m_text.add(characters, format());
    }

    void lineEnd()
    {
        m_afterHighSurrogate = false;
        if (isShown()) m_text.endLine(format());
    }

    void paragraph()
    {
        m_afterHighSurrogate = false;
        if (isShown()) m_text.endParagraph(format());
    }

    void unicode(int value)
    {
        constexpr int codeUnits = 65536;
        const int unit = value < 0 ? value + codeUnits : value;
        const bool endsPair = m_afterHighSurrogate && unit >= 0xDC00 && unit <= 0xDFFF; // the first half gave the "?"
        const int known = unit < 0 ? -1 : windows1252FromUnicode(static_cast<char32_t>(unit));
        if (!endsPair) character(known < 0 ? '?' : static_cast<char>(known));
        m_afterHighSurrogate = unit >= 0xD800 && unit <= 0xDBFF;
        m_toSkip = static_cast<std::size_t>(group().unicodeSkip);
    }

    void symbol(char c)
    {
        switch (c) {
        case '*':
            if (m_place == Place::GroupStart) m_next = Place::BehindStar;
            break;
        case '\r':
        case '\n':
            paragraph();
            break;
        case '~':
            character('\xA0');
            break;
        case '_':
            character('-');
            break;
        case '\\':
        case '{':
        case '}':
            character(c);
            break;
        case '\t':
            character('\t');
            break;
        default:
            break;
        }
    }

    // ---- words ------------------------------------------------------------------------------------------------------

    void word(const RtfToken& token)
    {
        if (group().holds == Group::Holds::Nothing) return;
        const RtfWord word = rtfWord(token.text);
        m_decoder.interrupt();
        if (m_place == Place::BehindStar) return mark(word.action, token.value);
        const bool on = !token.hasValue || token.value != 0;
        if (look(word.action, token.value, on) || characters(word, token.value)) return;
        table(word, token.value);
    }

    bool look(RtfAction action, int value, bool on)
    {
        switch (action) {
        case RtfAction::Bold:
            return set(look().bold, on);
        case RtfAction::Italic:
            return set(look().italic, on);
        case RtfAction::Underline:
            return set(look().underline, on);
        case RtfAction::NoUnderline:
            return set(look().underline, false);
        case RtfAction::ForeColour:
            return set(look().colour, m_looks.colours.at(value));
        case RtfAction::Font:
            return font(value);
        case RtfAction::FontSize:
            return value <= 0 || value > 32767 || set(look().size, static_cast<float>(value) / 2);
        case RtfAction::Indent:
            return set(look().indent, value);
        case RtfAction::Hidden:
            return set(group().hidden, on);
        case RtfAction::Deleted:
            return set(group().deleted, on);
        case RtfAction::Plain:
            return plain();
        case RtfAction::ParagraphPlain:
            return set(look().indent, 0);
        default:
            return false;
        }
    }

    bool characters(RtfWord word, int value)
    {
        switch (word.action) {
        case RtfAction::Character:
            character(static_cast<char>(word.value));
            return true;
        case RtfAction::Paragraph:
            paragraph();
            return true;
        case RtfAction::LineEnd:
            lineEnd();
            return true;
        case RtfAction::Unicode:
            unicode(value);
            return true;
        case RtfAction::UnicodeSkip:
            return set(group().unicodeSkip, std::max(value, 0));
        default:
            return false;
        }
    }

    void table(RtfWord word, int value)
    {
        switch (word.action) {
        case RtfAction::DefaultFont:
            m_looks.fonts.defaultNumber = value;
            break;
        case RtfAction::FilePage:
            m_codePage = word.value;
            break;
        case RtfAction::FilePageNumber:
            m_codePage = value;
            break;
        case RtfAction::FontCharset:
            m_looks.fonts.setCodePage(codePageOfCharset(value));
            break;
        case RtfAction::FontPage:
            m_looks.fonts.setCodePage(value);
            break;
        case RtfAction::FontTable:
            group().holds = Group::Holds::Fonts;
            break;
        case RtfAction::ColourTable:
            group().holds = Group::Holds::Colours;
            break;
        case RtfAction::Component:
            m_looks.colours.component(word.value, value);
            break;
        case RtfAction::Skip:
            group().holds = Group::Holds::Nothing;
            break;
        default:
            break;
        }
    }

    template <typename T> static bool set(T& target, const T& value)
    {
        target = value;
        return true;
    }

    /// A group that readers may skip: one of our own marks, which is about the group around it, or unknown.
    void mark(RtfAction action, int value)
    {
        const bool inText = group().holds == Group::Holds::Text && m_groups.size() > 1;
        group().holds = Group::Holds::Nothing;
        if (!inText) return;
        RtfLook& outer = m_groups[m_groups.size() - 2].look;
        if (action == RtfAction::ExactSize) {
            const auto size = std::bit_cast<float>(value);
            if (std::isfinite(size)) outer.size = size;
        } else if (action == RtfAction::ExactColour) {
            outer.colour = value;
        } else if (action == RtfAction::CrFormat) {
            m_text.setCrFormat(m_looks.numberOf(outer));
        }
    }

    // ---- look -------------------------------------------------------------------------------------------------------

    bool plain()
    {
        RtfLook plainLook;
        plainLook.indent = look().indent;
        look() = plainLook;
        group().hidden = group().deleted = false;
        return true;
    }

    bool font(int number)
    {
        if (group().holds != Group::Holds::Fonts) return set(look().font, m_looks.fonts.indexOf(number));
        m_looks.fonts.number(number);
        return true;
    }

    FormatId format()
    {
        if (!m_lastFormat || !(m_lastLook == look())) {
            m_lastLook = look();
            m_lastFormat = m_looks.numberOf(m_lastLook);
        }
        return *m_lastFormat;
    }

    RtfTokens m_tokens;
    std::shared_ptr<FormatTable> m_formats;
    RtfText m_text;
    std::vector<Group> m_groups;
    std::size_t m_tooDeep = 0;        ///< groups open beyond the deepest that are kept
    std::size_t m_toSkip = 0;         ///< characters that stand for the Unicode one just read
    Place m_place = Place::Elsewhere; ///< of the token at hand
    Place m_next = Place::Elsewhere;
    bool m_afterHighSurrogate = false;
    RtfCodePage m_codePage = rtfCodePage::windows;
    RtfDecoder m_decoder;

    RtfLooks m_looks;
    RtfLook m_lastLook;
    std::optional<FormatId> m_lastFormat;
};

} // namespace

bool looksLikeRtf(std::string_view bytes) { return bytes.starts_with("{\\rtf"); }

RichText readRtf(std::string_view rtf, const std::shared_ptr<FormatTable>& formats)
{
    return looksLikeRtf(rtf) ? RtfReader(rtf, formats).read() : RichText();
}

} // namespace tarvex
