#include "desktop/templates/template_resources.h"

#include "desktop/text.h"

#include <QDir>
#include <QFile>

namespace tarvex {

std::vector<ShippedTemplate> shippedTemplates()
{
    std::vector<ShippedTemplate> found;
    const QDir folder(QStringLiteral(":/templates"));
    for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly)) found.push_back({fromQt(name), file.readAll().toStdString()});
    }
    return found;
}

} // namespace tarvex
