#include "platform/posix/file_descriptor.h"

#include <cerrno>
#include <unistd.h>

namespace tarvex {

void FileDescriptor::reset(int number)
{
    const int error = errno;
    const int old = std::exchange(m_number, number);
    if (old >= 0) ::close(old);
    errno = error;
}

} // namespace tarvex
