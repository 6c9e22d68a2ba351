#pragma once

#include "platform/posix/file_descriptor.h"

#include <string>

namespace tarvex {

/// A private folder for one run of DOSBox, made with the program's own choice of names, so that its path can be given
/// DOSBox in a command. It is locked for as long as somebody uses it, and gone when this is destroyed.
class DosboxFolder {
public:
    /// Below $XDG_RUNTIME_DIR, or in /tmp where that isn't fit. Sweeps what runs that nobody saw the end of have left.
    /// Throws RuntimeError.
    DosboxFolder();
    ~DosboxFolder();
    DosboxFolder(const DosboxFolder&) = delete;
    DosboxFolder& operator=(const DosboxFolder&) = delete;

    const std::string& path() const { return m_path; }
    void put(const std::string& name, const std::string& bytes) const;
    void link(const std::string& name, const std::string& target) const;
    void makeDirectory(const std::string& name) const;

    /// For the process that uses the folder: it holds the lock for as long as it has the file open.
    int lock() const { return m_lock.get(); }
    /// The process goes on without us: the folder stays until it is swept.
    void leave() { m_path.clear(); }

private:
    std::string m_path;
    FileDescriptor m_lock;
};

} // namespace tarvex
