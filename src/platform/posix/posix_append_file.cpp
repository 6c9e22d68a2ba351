#include "platform/posix/posix_append_file.h"

#include "platform/posix/system_error.h"

#include <aio.h>
#include <cerrno>
#include <fcntl.h>

namespace tarvex {

namespace {

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
    if (m_started && ::aio_error(m_request.get()) == EINPROGRESS) return false;
    checkLast();
    *m_request = {};
    m_request->aio_fildes = m_file;
    m_request->aio_sigevent.sigev_notify = SIGEV_NONE;
    m_started = ::aio_fsync(O_DSYNC, m_request.get()) == 0;
    if (!m_started && m_calls.fsync(m_file) < 0) throwSystemError(); // a system without it makes the user wait
    return true;
}

void BackgroundSync::checkLast()
{
    if (!m_started) return;
    m_started = false;
    const int error = ::aio_error(m_request.get());
    ::aio_return(m_request.get());
    if (error != 0) throw systemError(error);
}

// ---- PosixAppendFile ------------------------------------------------------------------------------------------------

PosixAppendFile::PosixAppendFile(SystemCalls& calls, const std::string& path)
    : m_file(calls, inPrivateDirectory(calls, path), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_NOFOLLOW, 0600),
      m_sync(calls, m_file.descriptor())
{
    const int folder = O_RDONLY | O_DIRECTORY;
    try {
        m_directory.emplace(calls, path.substr(0, path.rfind('/') + 1), folder);
        m_directorySync.emplace(calls, m_directory->descriptor());
    } catch (const RuntimeError&) { // a folder that may be written but not read: its name has to wait for the system
    }
}

bool PosixAppendFile::sync()
{
    if (m_directorySync && !m_nameAsked) {
        m_nameAsked = true; // not every file system syncs a folder; the contents are what counts
        m_directorySync->start();
    }
    return m_sync.start();
}

} // namespace tarvex
