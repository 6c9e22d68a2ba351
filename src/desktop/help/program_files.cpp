#include "desktop/help/program_files.h"

#include "desktop/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <algorithm>

namespace tarvex {

std::vector<ShippedFile> readShippedFiles(const QString& folder)
{
    std::vector<ShippedFile> found;
    const QDir root(folder);
    for (QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly)) continue;
        const QString name = root.relativeFilePath(file.fileName()).replace(u'/', u'\\');
        found.push_back({fromQt(name), file.readAll().toStdString()});
    }
    std::ranges::sort(found, {}, &ShippedFile::name);
    return found;
}

std::vector<ShippedFile> shippedProgramFiles()
{
    return readShippedFiles(QCoreApplication::applicationDirPath() + u'/' + QLatin1String(TARVEX_FILES_FROM_PROGRAM));
}

} // namespace tarvex
