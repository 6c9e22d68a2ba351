#pragma once

#include "platform/files.h"
#include "platform/posix/open_file.h"

#include <memory>
#include <optional>
#include <string>

struct aiocb;

namespace tarvex {

/// An open file whose contents go to the disk while the program goes on; the disk may take as long as it likes.
class BackgroundSync {
public:
    BackgroundSync(SystemCalls& calls, int file);
    /// Waits for a sync that is under way.
    ~BackgroundSync();
    BackgroundSync(const BackgroundSync&) = delete;
    BackgroundSync& operator=(const BackgroundSync&) = delete;

    /// Also throws what went wrong with the one that ended last. False: one is still under way.
    bool start();
    /// None is under way. Throws once what went wrong with the last one.
    bool hasEnded();

private:
    SystemCalls& m_calls;
    int m_file;
    std::unique_ptr<aiocb> m_request;
    bool m_started = false; ///< and its result not asked for
};

/// A new file of the disk that grows, for its owner alone. Path and errors are the system's.
class PosixAppendFile final : public AppendFile {
public:
    /// Makes the directory when it isn't there. `calls` outlives this.
    PosixAppendFile(SystemCalls& calls, const std::string& path);

    void append(std::string_view bytes) override { m_file.writeAll(bytes); }
    bool sync() override;
    bool isSynced() override;

private:
    void syncName();
    bool isNameSynced();

    OpenFile m_file;
    BackgroundSync m_sync;
    std::optional<OpenFile> m_directory; ///< the name of the file has to be safe in it as well
    std::optional<BackgroundSync> m_directorySync;
    bool m_nameAsked = false;
};

} // namespace tarvex
