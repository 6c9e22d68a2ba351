#pragma once

#include "platform/signal.h"

#include <string>
#include <vector>

namespace tarvex {

/// Notices what other programs do to files at once, where the system can; it costs nothing while nothing happens.
class FileWatch {
public:
    virtual ~FileWatch() = default;
    /// Watches these DOS paths from now on, and no others. They may name nothing yet; a path that can't be watched is
    /// passed over.
    virtual void watch(const std::vector<std::string>& paths) = 0;

    /// One of the files may have been written, replaced, removed or made. Given once for changes that come closely one
    /// after the other.
    Signal<> changed;
};

} // namespace tarvex
