#include "documents/text/rtf/rtf_words.h"

#include "documents/text/rtf/rtf_marks.h"

#include <unordered_map>

namespace tarvex {

RtfWord rtfWord(std::string_view name)
{
    using enum RtfAction;
    static const std::unordered_map<std::string_view, RtfWord> words = {
        {"b", {Bold}},
        {"i", {Italic}},
        {"ul", {Underline}},
        {"uld", {Underline}},
        {"uldb", {Underline}},
        {"uldash", {Underline}},
        {"ulth", {Underline}},
        {"ulw", {Underline}},
        {"ulwave", {Underline}},
        {"ulnone", {NoUnderline}},
        {"cf", {ForeColour}},
        {"f", {Font}},
        {"fs", {FontSize}},
        {"li", {Indent}},
        {"plain", {Plain}},
        {"pard", {ParagraphPlain}},
        {"v", {Hidden}},
        {"deleted", {Deleted}},

        {"tab", {Character, '\t'}},
        {"cell", {Character, '\t'}},
        {"nestcell", {Character, '\t'}},
        {"emdash", {Character, 0x97}},
        {"endash", {Character, 0x96}},
        {"lquote", {Character, 0x91}},
        {"rquote", {Character, 0x92}},
        {"ldblquote", {Character, 0x93}},
        {"rdblquote", {Character, 0x94}},
        {"bullet", {Character, 0x95}},
        {"emspace", {Character, ' '}},
        {"enspace", {Character, ' '}},
        {"qmspace", {Character, ' '}},
        {"par", {Paragraph}},
        {"line", {LineEnd}},
        {"row", {LineEnd}},
        {"page", {LineEnd}},
        {"sect", {LineEnd}},
        {"u", {Unicode}},
        {"uc", {UnicodeSkip}},

        {"ansi", {FilePage, 1252}},
        {"ansicpg", {FilePageNumber}},
        {"mac", {FilePage, 10000}},
        {"pc", {FilePage, 437}},
        {"pca", {FilePage, 850}},
        {"fcharset", {FontCharset}},
        {"cpg", {FontPage}},
        {"deff", {DefaultFont}},
        {"fonttbl", {FontTable}},
        {"colortbl", {ColourTable}},
        {"red", {Component, 0}},
        {"green", {Component, 1}},
        {"blue", {Component, 2}},

        {"stylesheet", {Skip}},
        {"pntext", {Skip}},
        {"listtext", {Skip}},
        {"info", {Skip}},
        {"pict", {Skip}},
        {"nonshppict", {Skip}},
        {"shprslt", {Skip}},
        {"objdata", {Skip}},
        {"fldinst", {Skip}},
        {"header", {Skip}},
        {"headerf", {Skip}},
        {"headerl", {Skip}},
        {"headerr", {Skip}},
        {"footer", {Skip}},
        {"footerf", {Skip}},
        {"footerl", {Skip}},
        {"footerr", {Skip}},
        {"footnote", {Skip}},
        {"ftnsep", {Skip}},
        {"ftnsepc", {Skip}},
        {"ftncn", {Skip}},
        {"aftnsep", {Skip}},
        {"aftnsepc", {Skip}},
        {"aftncn", {Skip}},
        {"filetbl", {Skip}},
        {"revtbl", {Skip}},
        {"listtable", {Skip}},
        {"listoverridetable", {Skip}},
        {"template", {Skip}},
        {"private", {Skip}},
        {"tc", {Skip}},
        {"xe", {Skip}},
        {"rxe", {Skip}},
        {"txe", {Skip}},

        {rtfMark::size, {ExactSize}},
        {rtfMark::colour, {ExactColour}},
        {rtfMark::cr, {CrFormat}},
    };
    const auto word = words.find(name);
    return word == words.end() ? RtfWord{} : word->second;
}

} // namespace tarvex
