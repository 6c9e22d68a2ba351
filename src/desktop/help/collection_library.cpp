#include "desktop/help/help_collection.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHelpEngineCore>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

namespace tarvex {

namespace {

/// Where nobody but the user looks, and which the system clears; the folder of all users when there is no such one.
QString runtimeFolder()
{
    const QString own = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return !own.isEmpty() && QFileInfo(own).isWritable() ? own : QDir::tempPath();
}

/// Qt Help keeps a list of the collections that it knows in a file that it writes; it is made anew for each run, so
/// that it never refers to a collection that was moved or replaced.
class QtHelpCollection : public HelpCollection {
public:
    explicit QtHelpCollection(const QString& path)
    {
        const QString name = QHelpEngineCore::namespaceName(path);
        if (name.isEmpty()) {
            m_error = QStringLiteral("%1 isn't a help collection").arg(path);
            return;
        }
        m_engine = std::make_unique<QHelpEngineCore>(m_folder.filePath(QStringLiteral("known.qhc")));
        m_engine->setReadOnly(false);
        if (!m_engine->setupData() || !m_engine->registerDocumentation(path)) m_error = m_engine->error();
        m_root = QStringLiteral("qthelp://%1/handbook/").arg(name);
    }

    std::optional<QByteArray> file(const QString& name) const override
    {
        if (!m_error.isEmpty() || name.contains(QStringLiteral(".."))) return {};
        const QByteArray bytes =
            m_engine->fileData(QUrl(m_root + name)); // findFile has an answer for files that aren't there
        return bytes.isEmpty() ? std::nullopt : std::optional(bytes);
    }

    QString error() const override { return m_error; }

private:
    QTemporaryDir m_folder{runtimeFolder() + QStringLiteral("/tarvex-handbook-XXXXXX")};
    std::unique_ptr<QHelpEngineCore> m_engine;
    QString m_root;
    QString m_error;
};

} // namespace

} // namespace tarvex

extern "C" Q_DECL_EXPORT tarvex::HelpCollection* openTarvexHelpCollection(const QString& path)
{
    return new tarvex::QtHelpCollection(path);
}
