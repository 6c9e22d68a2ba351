#pragma once

#include "platform/posix/posix_processes.h"

#include <QSocketNotifier>

#include <map>
#include <memory>

namespace tarvex {

/// Programs beside a message loop: while one is waited for, the windows are drawn and take nothing from the user; those
/// that nobody waits for are taken leave of when they end.
class QtProcesses final : public PosixProcesses {
public:
    using PosixProcesses::PosixProcesses;

protected:
    bool waitUntilReadable(int file, int timeout) override;
    void watch(int file) override;
    void unwatch(int file) override;

private:
    std::map<int, std::unique_ptr<QSocketNotifier>> m_watched; ///< by file
};

} // namespace tarvex
