#pragma once

#include "platform/file_watch.h"

#include <QFileSystemWatcher>
#include <QStringList>
#include <QTimer>

#include <memory>

namespace tarvex {

class DriveMap;

/// Watches files, and the folders they are in: a file that is replaced by renaming another is a new one to the system.
class QtFileWatch final : public QObject, public FileWatch {
    Q_OBJECT
public:
    /// The drives outlive this.
    explicit QtFileWatch(const DriveMap& drives);

    void watch(const std::vector<std::string>& paths) override;

private:
    void noteChange();
    void settle();
    void watchAnew();

    const DriveMap& m_drives;
    std::unique_ptr<QFileSystemWatcher> m_watcher; ///< once there is something to watch: the start needn't wait for it
    QStringList m_files;
    QTimer m_quiet;  ///< runs out when nothing has changed for a moment
    QTimer m_latest; ///< runs out when something has changed for long enough
    QTimer m_later;  ///< the paths are given to the system when the program is idle
};

} // namespace tarvex
