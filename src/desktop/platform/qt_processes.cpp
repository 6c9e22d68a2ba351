#include "desktop/platform/qt_processes.h"

#include "desktop/platform/input_hold.h"

#include <QCoreApplication>
#include <QTimer>

namespace tarvex {

bool QtProcesses::waitUntilReadable(int file, int timeout)
{
    const bool hasEnded = PosixProcesses::waitUntilReadable(file, 0);
    if (hasEnded || timeout == 0 || QCoreApplication::instance() == nullptr) return hasEnded;
    InputHold hold;
    m_watched.erase(file); // from here on its end is ours
    QSocketNotifier ended(file, QSocketNotifier::Read);
    QObject::connect(&ended, &QSocketNotifier::activated, &hold, &InputHold::release);
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, &hold, &InputHold::release);
    if (timeout > 0) limit.start(timeout);
    hold.hold();
    ended.setEnabled(false);
    const bool has = PosixProcesses::waitUntilReadable(file, 0);
    if (!has) watch(file);
    return has;
}

/// The notifier isn't destroyed while it tells, but once that is over.
void QtProcesses::watch(int file)
{
    auto notifier = std::make_unique<QSocketNotifier>(file, QSocketNotifier::Read);
    QObject::connect(
        notifier.get(), &QSocketNotifier::activated, notifier.get(), [this] { reap(); }, Qt::QueuedConnection);
    m_watched[file] = std::move(notifier);
}

void QtProcesses::unwatch(int file) { m_watched.erase(file); }

} // namespace tarvex
