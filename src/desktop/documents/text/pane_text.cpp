#include "desktop/documents/text/pane_text.h"

#include "platform/windows1252.h"

#include <array>

namespace tarvex {

namespace {

constexpr char16_t controlPictures = 0x2400; // of the control character 0; the others follow in order
constexpr char16_t pictureOfDelete = 0x2421;

std::array<char16_t, 256> shownCharacters()
{
    std::array<char16_t, 256> shown = windows1252ToUnicode;
    for (char16_t control = 0; control < 0x20; ++control) {
        if (control != u'\t') shown[control] = static_cast<char16_t>(controlPictures + control);
    }
    shown[0x7F] = pictureOfDelete;
    return shown;
}

/// The byte that shows as this picture; -1 for other characters and for the pictures of TAB, CR and LF.
int byteOfPicture(char32_t character)
{
    if (character == pictureOfDelete) return 0x7F;
    if (character < controlPictures || character >= controlPictures + 0x20) return -1;
    const int byte = static_cast<int>(character - controlPictures);
    return byte == '\t' || byte == '\r' || byte == '\n' ? -1 : byte;
}

bool isLineEnd(char32_t character)
{
    return character == U'\n' || character == U'\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

bool isLatin1(const QString& text)
{
    for (const QChar character : text) {
        if (character.unicode() > 0xFF) return false;
    }
    return true;
}

} // namespace

QString documentText(std::string_view bytes)
{
    static const std::array<char16_t, 256> shown = shownCharacters();
    QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
    QChar* out = text.data();
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') {
            *out++ = QChar(QChar::ParagraphSeparator);
            ++i;
        } else {
            *out++ = QChar(shown[static_cast<unsigned char>(bytes[i])]);
        }
    }
    text.truncate(out - text.data());
    return text;
}

PaneText paneText(const QString& text)
{
    PaneText result;
    const QString composed = isLatin1(text) ? text : text.normalized(QString::NormalizationForm_C);
    result.exact = composed.size() == text.size();
    result.bytes.reserve(static_cast<std::size_t>(composed.size()));
    const std::u32string characters = composed.toStdU32String();
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const char32_t character = characters[i];
        if (isLineEnd(character)) {
            if (character == U'\r' && i + 1 < characters.size() && characters[i + 1] == U'\n') ++i;
            result.bytes += "\r\n";
            result.exact = result.exact && character == QChar::ParagraphSeparator;
            continue;
        }
        const int picture = byteOfPicture(character);
        const bool isControl = (character < 0x20 && character != U'\t') || character == 0x7F;
        const int byte = picture >= 0 ? picture : windows1252FromUnicode(character);
        result.bytes += byte < 0 ? '?' : static_cast<char>(byte);
        result.exact = result.exact && byte >= 0 && !isControl;
    }
    return result;
}

} // namespace tarvex
