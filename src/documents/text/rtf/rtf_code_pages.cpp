#include "documents/text/rtf/rtf_code_pages.h"

#include "platform/windows1252.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarvex {
namespace {

using namespace rtfCodePage;

struct Page {
    RtfCodePage number;
    std::u16string_view upperHalf; ///< characters of the bytes from 0x80; "." where Windows-1252 lacks the character
};

// clang-format off
// The characters are those of Python's codecs "cp..." and "mac_roman".
constexpr auto pages = std::to_array<Page>({
    {dosUs,
     u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥.ƒáíóúñÑªº¿.¬½¼¡«»................"
     u".................................ß....µ..........±....÷.°.·..².\u00A0"},
    {dosWestern,
     u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒáíóúñÑªº¿®¬½¼¡«».....ÁÂÀ©....¢¥."
     u"......ãÃ.......¤ðÐÊËÈ.ÍÎÏ....¦Ì.ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±.¾¶§÷¸°¨·¹³².\u00A0"},
    {874,
     u"€....…...........‘’“”•–—........\u00A0..............................."
     u"................................................................"},
    {1250,
     u"€.‚.„…†‡.‰Š‹..Ž..‘’“”•–—.™š›..ž.\u00A0...¤.¦§¨©.«¬\u00AD®.°±..´µ¶·¸..»...."
     u".ÁÂ.Ä..Ç.É.Ë.ÍÎ....ÓÔ.Ö×..Ú.ÜÝ.ß.áâ.ä..ç.é.ë.íî....óô.ö÷..ú.üý.."},
    {1251,
     u"..‚.„…†‡€‰.‹.....‘’“”•–—.™.›....\u00A0...¤.¦§.©.«¬\u00AD®.°±...µ¶·...»...."
     u"................................................................"},
    {1253,
     u"€.‚ƒ„…†‡.‰.‹.....‘’“”•–—.™.›....\u00A0..£¤¥¦§¨©.«¬\u00AD®.°±²³.µ¶·...».½.."
     u"................................................................"},
    {1254,
     u"€.‚ƒ„…†‡ˆ‰Š‹Œ....‘’“”•–—˜™š›œ..Ÿ\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
     u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏ.ÑÒÓÔÕÖ×ØÙÚÛÜ..ßàáâãäåæçèéêëìíîï.ñòóôõö÷øùúûü..ÿ"},
    {1255,
     u"€.‚ƒ„…†‡ˆ‰.‹.....‘’“”•–—˜™.›....\u00A0¡¢£.¥¦§¨©×«¬\u00AD®¯°±²³´µ¶·¸¹÷»¼½¾¿"
     u"................................................................"},
    {1256,
     u"€.‚ƒ„…†‡ˆ‰.‹Œ....‘’“”•–—.™.›œ...\u00A0.¢£¤¥¦§¨©.«¬\u00AD®¯°±²³´µ¶·¸¹.»¼½¾."
     u".......................×........à.â....çèéêë..îï....ô..÷.ù.ûü..."},
    {1257,
     u"€.‚.„…†‡.‰.‹.¨.¸.‘’“”•–—.™.›.¯..\u00A0.¢£¤.¦§Ø©.«¬\u00AD®Æ°±²³´µ¶·ø¹.»¼½¾æ"
     u"....ÄÅ...É......Š..Ó.ÕÖ×....Ü.Žß....äå...é......š..ó.õö÷....ü.ž."},
    {1258,
     u"€.‚ƒ„…†‡ˆ‰.‹Œ....‘’“”•–—˜™.›œ..Ÿ\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
     u"ÀÁÂ.ÄÅÆÇÈÉÊË.ÍÎÏ.Ñ.ÓÔ.Ö×ØÙÚÛÜ..ßàáâ.äåæçèéêë.íîï.ñ.óô.ö÷øùúûü..ÿ"},
    {mac,
     u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü†°¢£§•¶ß®©™´¨.ÆØ.±..¥µ.....ªº.æø"
     u"¿¡¬.ƒ..«»…\u00A0ÀÃÕŒœ–—“”‘’÷.ÿŸ.€‹›..‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ.ÒÚÛÙ.ˆ˜¯...¸..."},
});

static_assert(std::ranges::all_of(pages, [](const Page& page) { return page.upperHalf.size() == 128; }));

struct Charset {
    int number;
    RtfCodePage page;
};

constexpr auto charsets = std::to_array<Charset>({
    {0, windows}, // Western
    {2, windows}, // symbols
    {77, mac}, // Macintosh
    {128, 932}, // Japanese
    {129, 949}, // Korean
    {130, 1361}, // Korean, Johab
    {134, 936}, // simplified Chinese
    {136, 950}, // traditional Chinese
    {161, 1253}, // Greek
    {162, 1254}, // Turkish
    {163, 1258}, // Vietnamese
    {177, 1255}, // Hebrew
    {178, 1256}, // Arabic
    {186, 1257}, // Baltic
    {204, 1251}, // Cyrillic
    {222, 874}, // Thai
    {238, 1250}, // Central European
    {254, dosUs}, // PC
    {255, dosWestern}, // OEM
});
// clang-format on

bool hasPairs(RtfCodePage page) { return page == 932 || page == 936 || page == 949 || page == 950 || page == 1361; }

bool beginsPair(RtfCodePage page, unsigned char byte)
{
    const bool halfWidth = page == 932 && byte >= 0xA0 && byte <= 0xDF; // Japanese syllables of one byte
    return byte > 0x80 && byte < 0xFF && !halfWidth;
}

char inWindows1252(std::u16string_view upperHalf, unsigned char byte)
{
    if (byte < 0x80) return static_cast<char>(byte);
    const char16_t character = upperHalf[byte - 0x80U];
    return character == u'.' ? '?' : static_cast<char>(windows1252FromUnicode(character));
}

} // namespace

RtfCodePage codePageOfCharset(int charset)
{
    const auto* found = std::ranges::find(charsets, charset, &Charset::number);
    return found == charsets.end() ? ofFile : found->page;
}

std::string RtfDecoder::decode(std::string_view bytes, RtfCodePage page)
{
    if (hasPairs(page)) return decodePairs(bytes, page);
    std::string text(bytes);
    const auto* found = std::ranges::find(pages, page, &Page::number);
    if (found == pages.end()) return text;
    for (char& c : text) c = inWindows1252(found->upperHalf, static_cast<unsigned char>(c));
    return text;
}

std::string RtfDecoder::decodePairs(std::string_view bytes, RtfCodePage page)
{
    std::string text;
    for (const char c : bytes) {
        if (std::exchange(m_insideCharacter, false)) continue;
        const auto byte = static_cast<unsigned char>(c);
        text += byte < 0x80 ? c : '?';
        m_insideCharacter = beginsPair(page, byte);
    }
    return text;
}

} // namespace tarvex
