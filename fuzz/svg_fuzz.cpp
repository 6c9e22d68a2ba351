// Any bytes as a drawing, zipped or not: what is left of it is well-formed, names nothing outside itself, and can be
// cleaned once more.

#include "desktop/platform/drawings/clean_svg.h"
#include "desktop/platform/drawings/unzipped.h"

#include <QXmlStreamReader>

#include <cstdint>
#include <cstdlib>

namespace {

using namespace tarvex;

void require(bool holds)
{
    if (!holds) std::abort();
}

void requireInside(QStringView reference)
{
    const bool isData = reference.startsWith(QStringLiteral("data:")) && !reference.contains(u'(');
    require(reference.startsWith(u'#') || isData);
}

void requireClean(const QByteArray& svg)
{
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        require(token != QXmlStreamReader::DTD && token != QXmlStreamReader::ProcessingInstruction);
        for (const QXmlStreamAttribute& attribute : reader.attributes()) {
            // Behind "#" stands the name of a place, however it reads.
            if (attribute.name() == u"href")
                requireInside(attribute.value());
            else
                require(!attribute.value().contains(QStringLiteral("url(http"), Qt::CaseInsensitive));
        }
    }
    require(!reader.hasError());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr qsizetype most = 1024 * 1024;
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (isZipped(bytes)) bytes = unzipped(bytes, most);
    require(bytes.size() <= most || static_cast<std::size_t>(bytes.size()) == size);
    const QByteArray clean = withoutOutsideReferences(bytes);
    if (clean.isEmpty()) return 0;
    requireClean(clean);
    require(!withoutOutsideReferences(clean).isEmpty());
    return 0;
}
