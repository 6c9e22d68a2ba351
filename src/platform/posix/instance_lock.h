#pragma once

#include "platform/posix/file_descriptor.h"

#include <string>

namespace tarvex {

/// Keeps a second copy of the program from running: the kernel holds a lock on a file that stays, and frees it when the
/// process ends, however it ends. The contents of the file don't matter, nor who made it.
class InstanceLock {
public:
    /// Takes the lock and keeps it until this object goes. False: another process has it. A file that can't be opened
    /// or locked (a read-only folder, some network disks) keeps nobody out.
    bool take(const std::string& path);

private:
    FileDescriptor m_file;
};

} // namespace tarvex
