#pragma once

#include "platform/posix/file_descriptor.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvex {

// A second process hands its wish to the Tarvex that runs, over a socket that only processes of the same user can talk
// through; the user id of the other end is checked, too.

/// What a second process wants of the Tarvex that runs.
struct InstanceRequest {
    enum class Kind { ComeForward, Open };
    Kind kind = Kind::ComeForward;
    std::string path;  ///< the file to open, native and absolute or a DOS path
    std::string token; ///< by which the window system lets the window come forward; empty: none
    bool operator==(const InstanceRequest&) const = default;
};

/// Where the Tarvex of a program directory listens: in the user's runtime directory or, where that isn't a directory of
/// the user's alone, in the program directory. Makes the directory in the runtime directory.
std::string instanceSocket(const std::string& runtimeDirectory, const std::string& programDirectory);

/// Hands the request over. False: nobody of this user listens there, or no proper answer came in time.
bool askRunningInstance(const std::string& socket, const InstanceRequest& request, int milliseconds);

// ---- the side that listens ------------------------------------------------------------------------------------------

/// Bytes of the longest request.
constexpr std::size_t longestRequest = 1 << 14;

/// A socket at that path that doesn't block; what a process that is gone has left there gives way. No file: it can't be
/// had.
FileDescriptor listenForRequests(const std::string& socket);
/// The next process that waits, if it belongs to the same user; its socket doesn't block. No file: nobody does.
FileDescriptor acceptCaller(int listening);
/// Whole requests only; nothing for any other bytes.
std::optional<InstanceRequest> readRequest(std::string_view bytes);
std::string_view requestAccepted();

} // namespace tarvex
