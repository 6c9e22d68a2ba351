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

/// A new file of the disk that grows, for its owner alone. Path and errors are the system's. It is empty until all of
/// the first bytes are there: a process that is killed while it writes them leaves no half of a beginning. They are
/// written under a temporary name; what is left under one is a matter of removeTemporaryFiles.
class PosixAppendFile final : public AppendFile {
public:
    /// Makes the directory when it isn't there. `calls` outlives this.
    PosixAppendFile(SystemCalls& calls, const std::string& path);

    void append(std::string_view bytes) override;
    bool sync() override;
    bool isSynced() override;

private:
    void begin(std::string_view bytes);
    void syncName();
    bool isNameSynced();

    SystemCalls& m_calls;
    std::string m_path;
    std::optional<OpenFile> m_file;
    std::optional<BackgroundSync> m_sync;
    bool m_isEmpty = true;
    std::optional<OpenFile> m_directory; ///< the name of the file has to be safe in it as well
    std::optional<BackgroundSync> m_directorySync;
    bool m_nameAsked = false;
};

} // namespace tarvex
