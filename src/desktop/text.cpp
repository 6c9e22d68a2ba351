#include "desktop/text.h"

#include <QRegularExpression>

#include <cmath>

namespace tarvex {

QString toQt(std::string_view utf8) { return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())); }

std::string fromQt(const QString& text) { return text.toStdString(); }

QColor toQt(Colour colour) { return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF); }

QString withoutAccessKeys(const QString& text) { return QString(text).replace(u'&', QStringLiteral("&&")); }

QString withAccessKey(const QString& text, char key)
{
    QString caption = withoutAccessKeys(text);
    const qsizetype at = caption.indexOf(QLatin1Char(key));
    return at < 0 ? caption : caption.insert(at, u'&');
}

QString withOneAccessKey(const QString& caption)
{
    qsizetype mark = caption.indexOf(u'&');
    while (mark >= 0 && mark + 1 < caption.size() && caption[mark + 1] == u'&') mark = caption.indexOf(u'&', mark + 2);
    if (mark < 0) return caption;
    const QString rest = caption.mid(mark + 1);
    return caption.left(mark + 1) + withoutAccessKeys(QString(rest).replace(QStringLiteral("&&"), QStringLiteral("&")));
}

QString wrappingTip(const QString& text)
{
    if (text.isEmpty()) return text;
    return QStringLiteral("<span>") + withBreaksInLongWords(text).toHtmlEscaped() + QStringLiteral("</span>");
}

QString withBreaksInLongWords(QString text)
{
    constexpr int longestWord = 60;
    static const QRegularExpression longWord(QStringLiteral("(\\S{%1})(?=\\S)").arg(longestWord));
    return text.replace(longWord, QStringLiteral("\\1\u200B"));
}

int toPixels(float twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }

float toTwips(int pixels) { return static_cast<float>(pixels) * twipsPerPixel; }

} // namespace tarvex
