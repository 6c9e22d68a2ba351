#include "desktop/platform/qt_pictures.h"

#include "desktop/platform/drawings/clean_svg.h"
#include "desktop/platform/drawings/unzipped.h"
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

namespace tarvex {

namespace {

constexpr int mostMegabytes = 400; ///< of one picture in memory; 20,000 x 20,000 pixels would take 1,600

[[noreturn]] void fail(const QString& reason)
{
    throw RuntimeError(ErrorCode::InvalidPicture, "Invalid picture: " + fromQt(reason));
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
    const QByteArray bytes = file.readAll();
    return isZipped(bytes) ? unzipped(bytes, largest) : bytes;
}

} // namespace

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
