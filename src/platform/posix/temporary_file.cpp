#include "platform/posix/temporary_file.h"

#include "platform/errors.h"
#include "platform/posix/own_names.h"
#include "platform/posix/system_error.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

namespace tarvex {

namespace {

/// Sets `path` to the name that was free.
OpenFile createUnderFreeName(SystemCalls& calls, const std::string& directory, mode_t mode, std::string& path)
{
    constexpr int mostTries = 100;
    for (int tries = 1;; ++tries) {
        path = directory + temporaryName(calls.randomBits());
        try {
            return {calls, path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode};
        } catch (const RuntimeError& error) {
            if (error.lastDllError() != EEXIST || tries == mostTries) throw;
        }
    }
}

} // namespace

TemporaryFile::TemporaryFile(SystemCalls& calls, const std::string& directory, mode_t mode)
    : m_calls(calls), m_file(createUnderFreeName(calls, directory, mode, m_path))
{
    m_calls.flock(m_file.descriptor(), LOCK_EX | LOCK_NB); // not every file system can; its left-overs just stay
}

TemporaryFile::~TemporaryFile()
{
    if (!m_isComplete) m_calls.unlink(m_path);
}

void TemporaryFile::renameTo(const std::string& path)
{
    if (m_calls.rename(m_path, path) < 0) throwSystemError();
    m_path = path;
    m_isComplete = true;
}

void TemporaryFile::remove()
{
    m_calls.unlink(m_path);
    m_isComplete = true;
}

} // namespace tarvex
