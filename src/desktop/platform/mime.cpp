#include "desktop/platform/mime.h"

#include "desktop/text.h"

#include <QMimeData>
#include <QUrl>

#include <array>

namespace tarvex {

namespace {

const std::array<QString, 3>& rtfNames()
{
    static const std::array<QString, 3> names{QStringLiteral("text/rtf"), QStringLiteral("application/rtf"),
                                              QStringLiteral("text/richtext")};
    return names;
}

} // namespace

std::unique_ptr<QMimeData> toMime(const ClipboardContent& content)
{
    auto data = std::make_unique<QMimeData>();
    if (!content.text.empty()) data->setText(toQt(content.text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    if (content.rtf.empty()) return data;
    for (const QString& name : rtfNames()) data->setData(name, QByteArray::fromStdString(content.rtf));
    return data;
}

ClipboardContent fromMime(const QMimeData& data)
{
    ClipboardContent content;
    if (data.hasText()) content.text = fromQt(data.text());
    for (const QString& name : rtfNames()) {
        if (!content.rtf.empty()) break;
        if (data.hasFormat(name)) content.rtf = data.data(name).toStdString();
    }
    return content;
}

QStringList localFiles(const QMimeData& data)
{
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) files.append(url.toLocalFile());
    }
    return files;
}

bool holdsContent(const QMimeData& data)
{
    if (data.hasText()) return true;
    const auto& names = rtfNames();
    return std::any_of(names.begin(), names.end(), [&](const QString& name) { return data.hasFormat(name); });
}

} // namespace tarvex
