#include "desktop/platform/qt_processes.h"

#include "desktop/platform/input_hold.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

namespace tarvex {

/// Reports the end of a program from the message loop, or that it is time to look.
std::unique_ptr<QObject> QtProcesses::endNotifier(const Running& program, const QObject& context,
                                                  std::function<void()> report)
{
    if (program.file >= 0) {
        auto notifier = std::make_unique<QSocketNotifier>(program.file, QSocketNotifier::Read);
        QObject::connect(notifier.get(), &QSocketNotifier::activated, &context, report, Qt::QueuedConnection);
        return notifier;
    }
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, &context, report, Qt::QueuedConnection);
    timer->start(lookAfter);
    return timer;
}

bool QtProcesses::waitForEnd(const Running& program, int timeout)
{
    if (hasEnded(program)) return true;
    if (timeout == 0 || QCoreApplication::instance() == nullptr) return PosixProcesses::waitForEnd(program, timeout);
    InputHold hold;
    const auto ended = endNotifier(program, hold, [&] {
        if (hasEnded(program)) hold.release();
    });
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, &hold, &InputHold::release);
    if (timeout > 0) limit.start(timeout);
    hold.hold();
    return hasEnded(program);
}

/// Queued, because `reap` may destroy the notifier that fired.
void QtProcesses::watch(const Running& program)
{
    m_watched[program.process] = endNotifier(program, m_context, [this] { reap(); });
}

void QtProcesses::unwatch(const Running& program) { m_watched.erase(program.process); }

} // namespace tarvex
