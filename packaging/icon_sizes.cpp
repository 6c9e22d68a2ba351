// Draws an icon in the sizes that icon themes have:  icon_sizes ICON.svg FOLDER
// writes FOLDER/16.png and so on up to FOLDER/256.png.

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int sizes[] = {16, 22, 24, 32, 48, 64, 128, 256};

bool draw(QSvgRenderer& icon, int size, const QString& path)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.render(&painter);
    painter.end();
    return image.save(path);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 3) {
        std::fputs("use: icon_sizes ICON.svg FOLDER\n", stderr);
        return EXIT_FAILURE;
    }
    QSvgRenderer icon(QString::fromLocal8Bit(arguments[1]));
    const QDir folder(QString::fromLocal8Bit(arguments[2]));
    if (!icon.isValid() || !folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "icon_sizes: %s can't be read, or %s not made\n", arguments[1], arguments[2]);
        return EXIT_FAILURE;
    }
    for (const int size : sizes) {
        if (draw(icon, size, folder.filePath(QString::number(size) + QStringLiteral(".png")))) continue;
        std::fprintf(stderr, "icon_sizes: %s is not written in size %d\n", arguments[1], size);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
