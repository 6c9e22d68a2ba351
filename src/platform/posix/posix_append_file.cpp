#include "platform/posix/posix_append_file.h"

#include "platform/posix/system_error.h"
#include "platform/posix/temporary_file.h"

#include <aio.h>
#include <cerrno>
#include <fcntl.h>

namespace tarvex {

namespace {

constexpr mode_t privateMode = 0600;

std::string directoryOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

/// The path, once its directory is there.
const std::string& inPrivateDirectory(SystemCalls& calls, const std::string& path)
{
    const std::string directory = path.substr(0, path.rfind('/'));
    if (!directory.empty() && calls.mkdir(directory, 0700) < 0 && errno != EEXIST) throwSystemError();
    return path;
}

} // namespace

// ---- BackgroundSync -------------------------------------------------------------------------------------------------

BackgroundSync::BackgroundSync(SystemCalls& calls, int file)
    : m_calls(calls), m_file(file), m_request(std::make_unique<aiocb>())
{
}

BackgroundSync::~BackgroundSync()
{
    const aiocb* const request = m_request.get();
    while (m_started && ::aio_error(m_request.get()) == EINPROGRESS) ::aio_suspend(&request, 1, nullptr);
    if (m_started) ::aio_return(m_request.get());
}

bool BackgroundSync::start()
{
    if (!hasEnded()) return false;
    *m_request = {};
    m_request->aio_fildes = m_file;
    m_request->aio_sigevent.sigev_notify = SIGEV_NONE;
    m_started = m_calls.startSync(*m_request) == 0;
    if (!m_started && m_calls.fsync(m_file) < 0) throwSystemError(); // a system without it makes the user wait
    return true;
}

bool BackgroundSync::hasEnded()
{
    if (!m_started) return true;
    const int error = ::aio_error(m_request.get());
    if (error == EINPROGRESS) return false;
    m_started = false;
    ::aio_return(m_request.get());
    if (error != 0) throw systemError(error);
    return true;
}

// ---- PosixAppendFile ------------------------------------------------------------------------------------------------

PosixAppendFile::PosixAppendFile(SystemCalls& calls, const std::string& path) : m_calls(calls), m_path(path)
{
    m_file.emplace(calls, inPrivateDirectory(calls, path), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_NOFOLLOW,
                   privateMode);
    m_sync.emplace(calls, m_file->descriptor());
    const int folder = O_RDONLY | O_DIRECTORY;
    try {
        m_directory.emplace(calls, directoryOf(path), folder);
        m_directorySync.emplace(calls, m_directory->descriptor());
    } catch (const RuntimeError&) { // a folder that may be written but not read: its name has to wait for the system
    }
}

void PosixAppendFile::append(std::string_view bytes)
{
    if (m_isEmpty) return begin(bytes);
    m_file->writeAll(bytes);
}

/// In the place of the empty file, which has kept the name for it.
void PosixAppendFile::begin(std::string_view bytes)
{
    TemporaryFile whole(m_calls, directoryOf(m_path), privateMode);
    whole.file().writeAll(bytes);
    whole.renameTo(m_path);
    m_sync.reset(); // before the file that it syncs
    m_file.reset();
    m_file.emplace(std::move(whole.file()));
    m_sync.emplace(m_calls, m_file->descriptor());
    m_isEmpty = false;
}

bool PosixAppendFile::sync()
{
    if (m_directorySync && !m_nameAsked) syncName();
    return m_sync->start();
}

bool PosixAppendFile::isSynced() { return isNameSynced() && m_sync->hasEnded(); }

void PosixAppendFile::syncName()
{
    m_nameAsked = true;
    try {
        m_directorySync->start();
    } catch (const RuntimeError&) { // not every file system syncs a folder; the contents are what counts
        m_directorySync.reset();
    }
}

bool PosixAppendFile::isNameSynced()
{
    try {
        return !m_directorySync || m_directorySync->hasEnded();
    } catch (const RuntimeError& error) {
        m_directorySync.reset();
        if (error.code() == ErrorCode::DeviceInputOutput || error.code() == ErrorCode::DiskFull) throw;
        return true; // refused, as by a file system that doesn't sync folders
    }
}

} // namespace tarvex
