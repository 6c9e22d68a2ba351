#include "desktop/platform/qt_pictures.h"

#include "desktop/text.h"
#include "platform/errors.h"
#include "platform/posix/drive_map.h"

#include <QBuffer>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <QUrl>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace tarvex {

namespace {

constexpr int mostMegabytes = 400; ///< of one picture in memory; 20,000 x 20,000 pixels would take 1,600

[[noreturn]] void fail(const QString& reason)
{
    throw RuntimeError(ErrorCode::InvalidPicture, "Invalid picture: " + fromQt(reason));
}

bool leadsOutside(const QXmlStreamAttribute& attribute)
{
    const QString value = attribute.value().trimmed().toString();
    if (attribute.name() == u"href") return !value.startsWith(u'#') && !value.startsWith(QStringLiteral("data:"));
    return value.contains(QStringLiteral("url(")) && !value.contains(QStringLiteral("url(#"));
}

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

QImage drawing(const QByteArray& svg)
{
    constexpr int longestSide = 4000;
    QSvgRenderer renderer(withoutOutsideReferences(svg));
    if (!renderer.isValid()) fail(QStringLiteral("the drawing can't be read"));
    QSize size = renderer.defaultSize();
    if (size.isEmpty()) fail(QStringLiteral("the drawing has no size"));
    if (size.width() > longestSide || size.height() > longestSide)
        size.scale(longestSide, longestSide, Qt::KeepAspectRatio);
    QImage image(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

QByteArray wholeDrawing(QIODevice& file)
{
    constexpr qint64 largest = 32LL * 1024 * 1024;
    if (file.size() > largest) fail(QStringLiteral("the drawing is too large"));
    return file.readAll();
}

} // namespace

QByteArray withoutOutsideReferences(const QByteArray& svg)
{
    constexpr int deepest = 200; // Qt draws by recursion
    QByteArray clean;
    QXmlStreamReader reader(svg);
    QXmlStreamWriter writer(&clean);
    reader.setNamespaceProcessing(true);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > deepest) return {};
            copyElement(reader, writer);
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            writer.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
            if (!reader.text().contains(QStringLiteral("@import"))) writer.writeCharacters(reader.text().toString());
            break;
        default: // declarations, comments and processing instructions, which name style sheets
            break;
        }
    }
    return reader.hasError() ? QByteArray() : clean;
}

std::shared_ptr<const LoadedPicture> QtPictures::load(const std::string& path)
{
    const QString native = toQt(m_drives.toNative(path));
    if (!QFileInfo(native).isFile()) throw RuntimeError(ErrorCode::FileNotFound, "File not found: " + path);
    QFile file(native);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorCode::PathFileAccess, fromQt(file.errorString()) + ": " + path);
    QImageReader::setAllocationLimit(mostMegabytes);
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QByteArray format = reader.format();
    if (format == "svg" || format == "svgz") return std::make_shared<QtPicture>(drawing(wholeDrawing(file)));
    QImage image = reader.read();
    if (image.isNull()) fail(reader.errorString());
    return std::make_shared<QtPicture>(std::move(image));
}

std::string QtPictures::bitmap(const LoadedPicture& picture)
{
    const auto& image = dynamic_cast<const QtPicture&>(picture).image();
    QBuffer buffer;
    if (!image.save(&buffer, "BMP")) fail(QStringLiteral("it can't be written as a bitmap"));
    return buffer.data().toStdString();
}

void QtPictures::openOutside(const std::string& path)
{
    const QString native = toQt(m_drives.toNative(path));
    if (QFileInfo(native).isFile()) QDesktopServices::openUrl(QUrl::fromLocalFile(native));
}

} // namespace tarvex
