#include "desktop/help/qt_help_system.h"

#include "desktop/help/help_collection.h"
#include "desktop/text.h"
#include "platform/posix/wine_registry.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QRandomGenerator>
#include <QUrl>

namespace tarvex {

HelpPlaces helpPlaces(const std::string& winePrefix)
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const auto beside = [&](const char* path) { return QDir::cleanPath(programs.filePath(QLatin1String(path))); };
    return {beside(TARVEX_HANDBOOK_FROM_PROGRAM), beside(TARVEX_LIBRARY_FROM_PROGRAM), toQt(winePrefix)};
}

QtHelpSystem::QtHelpSystem(HelpPlaces places) : m_places(std::move(places)) {}

QtHelpSystem::~QtHelpSystem() = default;

/// The library stays loaded; a handbook that can't be opened is tried again, because it may be installed meanwhile.
bool QtHelpSystem::openCollection()
{
    if (m_collection) return true;
    const QString path = m_places.handbook + QStringLiteral("/tarvex.qch");
    if (!QFileInfo(path).isReadable()) {
        m_why = fromQt((QFileInfo::exists(path) ? QStringLiteral("the file %1 can't be read")
                                                : QStringLiteral("there is no file %1"))
                           .arg(path));
        return false;
    }
    QLibrary library(m_places.library);
    const auto open = reinterpret_cast<OpenHelpCollection>(library.resolve(openHelpCollectionName));
    if (open == nullptr) {
        m_why = "what reads it isn't there (" + fromQt(library.errorString()) + ")";
        return false;
    }
    std::unique_ptr<HelpCollection> collection(open(path));
    m_why = fromQt(collection->error());
    if (m_why.empty()) m_collection = std::move(collection);
    return m_collection != nullptr;
}

std::optional<std::string> QtHelpSystem::handbookFile(const std::string& name)
{
    if (!openCollection()) return {};
    const auto bytes = m_collection->file(toQt(name));
    return bytes ? std::optional(bytes->toStdString()) : std::nullopt;
}

std::string QtHelpSystem::browserAddress(const std::string& page)
{
    const QString path = m_places.handbook + u'/' + toQt(page);
    if (!QFileInfo(path).isFile()) return {};
    return QUrl::fromLocalFile(path).toEncoded().toStdString();
}

bool QtHelpSystem::openAddress(const std::string& address)
{
    const QUrl url(toQt(address), QUrl::StrictMode);
    return url.isValid() && QDesktopServices::openUrl(url);
}

std::optional<std::string> QtHelpSystem::registryText(std::string_view key, std::string_view name)
{
    if (m_places.winePrefix.isEmpty()) return {};
    return readWineRegistry(fromQt(m_places.winePrefix) + "/system.reg", key, name);
}

std::uint32_t QtHelpSystem::chance() { return QRandomGenerator::global()->generate(); }

} // namespace tarvex
