#pragma once

#include "platform/posix/processes/posix_processes.h"

#include <QObject>

#include <functional>
#include <map>
#include <memory>

namespace tarvex {

/// Programs beside a message loop: while one is waited for, the windows are drawn and take nothing from the user; those
/// that nobody waits for are reaped when they exit.
class QtProcesses : public PosixProcesses {
public:
    using PosixProcesses::PosixProcesses;

protected:
    bool waitForEnd(const Running& program, int timeout) override;
    void watch(const Running& program) override;
    void unwatch(const Running& program) override;

private:
    static std::unique_ptr<QObject> endNotifier(const Running& program, const QObject& context,
                                                std::function<void()> report);

    QObject m_context;                                   ///< later exits are no longer reported
    std::map<pid_t, std::unique_ptr<QObject>> m_watched; ///< by process
};

} // namespace tarvex
