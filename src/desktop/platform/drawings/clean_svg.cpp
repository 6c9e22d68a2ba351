#include "desktop/platform/drawings/clean_svg.h"

#include <QHash>
#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace tarvex {

namespace {

constexpr int deepest = 200; // Qt draws by recursion

// ---- references -----------------------------------------------------------------------------------------------------

/// Whether a style or a paint names something outside: url(...) that isn't a place of the document, an @ rule, or an
/// escape that could hide either.
bool isOutsideStyle(QStringView style)
{
    if (style.contains(u'@') || style.contains(u'\\')) return true;
    const QString function = QStringLiteral("url(");
    for (qsizetype at = style.indexOf(function, 0, Qt::CaseInsensitive); at >= 0;
         at = style.indexOf(function, at + 1, Qt::CaseInsensitive)) {
        QStringView target = style.mid(at + function.size()).trimmed();
        if (target.startsWith(u'"') || target.startsWith(u'\'')) target = target.mid(1).trimmed();
        if (!target.startsWith(u'#')) return true;
    }
    return false;
}

/// The bytes that a picture of pixels begins with. Qt takes what a drawing brings along by its contents, and not by the
/// kind that it is said to be.
bool isPixels(const QByteArray& bytes)
{
    using namespace std::string_view_literals;
    constexpr std::array beginnings{"\x89PNG\r\n\x1a\n"sv, "\xFF\xD8\xFF"sv, "GIF8"sv, "BM"sv, "RIFF"sv};
    const std::string_view view(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return std::ranges::any_of(beginnings, [=](std::string_view beginning) { return view.starts_with(beginning); });
}

/// What the kind of data and base64 are written in. Qt passes over anything else among the letters of base64, so that
/// it could hide something there.
bool isPlainData(QStringView data)
{
    return std::ranges::all_of(data, [](QChar c) {
        return (c.unicode() < 0x80 && c.isLetterOrNumber()) || c.isSpace() || QStringView(u"+/=;,.-").contains(c);
    });
}

bool isOutsideTarget(QStringView target)
{
    if (target.startsWith(u'#')) return false;
    const QString scheme = QStringLiteral("data:");
    const QString mark = QStringLiteral("base64,");
    const qsizetype at = target.indexOf(mark);
    if (!target.startsWith(scheme) || at < 0 || at != target.lastIndexOf(mark)) return true;
    if (!isPlainData(target.mid(scheme.size()))) return true;
    constexpr qsizetype enoughForBeginning = 64;
    return !isPixels(QByteArray::fromBase64(target.mid(at + mark.size(), enoughForBeginning).toLatin1()));
}

bool leadsOutside(const QXmlStreamAttribute& attribute)
{
    if (attribute.name() == u"href") return isOutsideTarget(attribute.value());
    return attribute.value().contains(QStringLiteral("url("), Qt::CaseInsensitive) && isOutsideStyle(attribute.value());
}

// ---- copies ---------------------------------------------------------------------------------------------------------

/// Counts how often elements are drawn that others stand for: a few lines can make millions of them.
class Copies {
public:
    void start(const QXmlStreamReader& reader)
    {
        const int own = static_cast<int>(m_elements.size());
        m_elements.push_back({.parent = m_open});
        m_open = own;
        for (const QXmlStreamAttribute& attribute : reader.attributes()) {
            if (attribute.name() == u"id") m_byId.insert(attribute.value().toString(), own);
            if (attribute.name() == u"href" && reader.name() == u"use")
                m_elements.back().targetId = attribute.value().mid(1).toString();
        }
    }
    void end() { m_open = m_elements[static_cast<std::size_t>(m_open)].parent; }

    /// The work of each element is known once that of all within it is, and of what they stand for. What stands for
    /// itself by some detour isn't drawn by Qt, and counts as endless here.
    bool areTooMany()
    {
        for (Element& element : m_elements) element.target = m_byId.value(element.targetId, -1);
        for (int round = 0; round < deepest; ++round) {
            const bool known = !countAgain();
            if (!m_elements.empty() && m_elements.front().times - static_cast<double>(m_elements.size()) > most)
                return true;
            if (known) return false;
        }
        return true;
    }

private:
    static constexpr double most = 100'000;
    struct Element {
        int parent = -1;
        QString targetId = {}; ///< of what a use stands for
        int target = -1;
        double times = 0;
        double next = 0; ///< what `times` becomes
    };
    /// True: some count is another than before.
    bool countAgain()
    {
        for (Element& element : m_elements) element.next = 1;
        for (std::size_t i = m_elements.size(); i-- > 0;) { // children stand behind their parents
            Element& element = m_elements[i];
            if (element.target >= 0) element.next += m_elements[static_cast<std::size_t>(element.target)].times;
            if (element.parent >= 0) m_elements[static_cast<std::size_t>(element.parent)].next += element.next;
        }
        bool changed = false;
        for (Element& element : m_elements) {
            changed = changed || element.times != element.next;
            element.times = element.next;
        }
        return changed;
    }

    std::vector<Element> m_elements;
    QHash<QString, int> m_byId;
    int m_open = -1;
};

void copyElement(const QXmlStreamReader& reader, QXmlStreamWriter& writer)
{
    writer.writeStartElement(reader.qualifiedName().toString());
    for (const QXmlStreamNamespaceDeclaration& declaration : reader.namespaceDeclarations()) {
        const QString prefix = declaration.prefix().toString();
        writer.writeAttribute(prefix.isEmpty() ? QStringLiteral("xmlns") : QStringLiteral("xmlns:") + prefix,
                              declaration.namespaceUri().toString());
    }
    for (const QXmlStreamAttribute& attribute : reader.attributes()) {
        if (!leadsOutside(attribute))
            writer.writeAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
    }
}

} // namespace

QByteArray withoutOutsideReferences(const QByteArray& svg)
{
    QByteArray clean;
    QXmlStreamReader reader(svg);
    QXmlStreamWriter writer(&clean);
    Copies copies;
    QStringList open;
    QString text; // up to the next tag: comments within it disappear
    const auto writeText = [&] {
        if (!text.isEmpty() && (!open.contains(QStringLiteral("style")) || !isOutsideStyle(text)))
            writer.writeCharacters(text);
        text.clear();
    };
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            writeText();
            open.append(reader.name().toString());
            if (open.size() > deepest) return {};
            copies.start(reader);
            copyElement(reader, writer);
            break;
        case QXmlStreamReader::EndElement:
            writeText();
            open.removeLast();
            copies.end();
            writer.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
            text += reader.text();
            break;
        default: // declarations, comments and processing instructions, which name style sheets
            break;
        }
    }
    return reader.hasError() || copies.areTooMany() ? QByteArray() : clean;
}

} // namespace tarvex
