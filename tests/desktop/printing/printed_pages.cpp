#include "printed_pages.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace tarvex {

namespace {

QByteArray run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60'000) || process.exitCode() != 0)
        throw std::runtime_error((program + ": " + process.readAllStandardError()).toStdString());
    return process.readAllStandardOutput();
}

} // namespace

PrintedPages::PrintedPages(const std::string& pdf)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("paper.pdf");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("no folder for the file");
    file.write(QByteArray::fromStdString(pdf));
    file.close();
    QStringList texts = QString::fromUtf8(run("pdftotext", {"-layout", path, "-"})).split(u'\f');
    texts.removeLast(); // behind the last page
    for (const QString& page : texts) {
        QStringList lines;
        for (const QString& line : page.split(u'\n'))
            if (!line.trimmed().isEmpty()) lines.append(line);
        text.push_back(lines);
    }
    run("pdftoppm", {"-r", QString::number(dotsPerInch), path, folder.filePath("page")});
    for (const QString& name : QDir(folder.path()).entryList({"page*.ppm"}, QDir::Files, QDir::Name))
        pages.emplace_back(folder.filePath(name));
}

QRect PrintedPages::ink(std::size_t page) const
{
    const QImage& image = pages.at(page);
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != QColor(Qt::white)) area |= QRect(x, y, 1, 1);
    }
    return area;
}

bool PrintedPages::has(std::size_t page, QColor colour) const
{
    constexpr int tolerance = 60; // text is blended with the paper
    const QImage& image = pages.at(page);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor is = image.pixelColor(x, y);
            if (std::abs(is.red() - colour.red()) + std::abs(is.green() - colour.green()) +
                    std::abs(is.blue() - colour.blue()) <
                tolerance)
                return true;
        }
    }
    return false;
}

} // namespace tarvex
