#include "desktop/platform/qt_file_watch.h"

#include "desktop/bind.h"
#include "desktop/text.h"
#include "platform/posix/drive_map.h"

#include <QApplication>
#include <QFileInfo>

namespace tarvex {

namespace {

// Milliseconds. Most programs write a file in several steps, and some write one many times a second.
constexpr int quietTime = 150;
constexpr int latestTime = 1000;

QString nativePath(const DriveMap& drives, const std::string& path)
{
    if (path.empty()) return {}; // a document without a file, as at each start: no exception for that
    try {
        return toQt(drives.toNative(path));
    } catch (const std::exception&) {
        return {}; // a drive that isn't there
    }
}

} // namespace

QtFileWatch::QtFileWatch(const DriveMap& drives) : m_drives(drives)
{
    for (QTimer* timer : {&m_quiet, &m_latest, &m_later}) timer->setSingleShot(true);
    // Nothing is to change behind a loader that runs; a tick that is held comes again when it has ended.
    for (QTimer* timer : {&m_quiet, &m_latest}) timer->setObjectName(QLatin1String(tickName));
    m_quiet.setInterval(quietTime);
    m_latest.setInterval(latestTime);
    connect(&m_quiet, &QTimer::timeout, this, &QtFileWatch::settle);
    connect(&m_latest, &QTimer::timeout, this, &QtFileWatch::settle);
    connect(&m_later, &QTimer::timeout, this, &QtFileWatch::watchAnew);
}

void QtFileWatch::watch(const std::vector<std::string>& paths)
{
    m_files.clear();
    for (const std::string& path : paths) {
        const QString native = nativePath(m_drives, path);
        if (!native.isEmpty()) m_files.append(native);
    }
    m_later.start();
}

/// Links are followed: what changes is the file that they lead to.
void QtFileWatch::watchAnew()
{
    QStringList wanted;
    for (const QString& file : m_files) {
        const QFileInfo info(file);
        if (info.exists()) wanted.append(info.canonicalFilePath());
        for (const QString& folder : {info.absolutePath(), QFileInfo(info.canonicalFilePath()).absolutePath()})
            if (QFileInfo(folder).isDir()) wanted.append(folder);
    }
    wanted.removeDuplicates();
    if (!m_watcher) {
        m_watcher = std::make_unique<QFileSystemWatcher>();
        connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, this, &QtFileWatch::noteChange);
        connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, this, &QtFileWatch::noteChange);
    }
    QStringList old = m_watcher->files() + m_watcher->directories();
    for (const QString& path : wanted) old.removeAll(path);
    if (!old.isEmpty()) m_watcher->removePaths(old);
    const QStringList watched = m_watcher->files() + m_watcher->directories();
    for (const QString& path : watched) wanted.removeAll(path);
    if (!wanted.isEmpty()) m_watcher->addPaths(wanted);
}

void QtFileWatch::noteChange()
{
    m_quiet.start();
    if (!m_latest.isActive()) m_latest.start();
}

/// While a box waits for an answer nothing is to change behind it; the window looks for itself when the box has gone.
void QtFileWatch::settle()
{
    m_quiet.stop();
    m_latest.stop();
    watchAnew(); // a file that was replaced isn't watched any more
    if (QApplication::activeModalWidget() == nullptr) changed();
}

} // namespace tarvex
