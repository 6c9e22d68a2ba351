#include "platform/posix/running_instance.h"

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <vector>

namespace tarvex {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::string_view greeting = "tarvex 1";
constexpr std::string_view accepted = "tarvex 1 accepted\n";
constexpr std::string_view open = "open";
constexpr std::string_view comeForward = "come forward";

/// Names one program directory among others; nothing depends on two never having the same.
std::string nameOf(std::string_view directory)
{
    std::uint64_t sum = 0xCBF29CE484222325U; // FNV-1a
    for (const char c : directory) sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return std::to_string(sum) + ".socket";
}

/// A directory that nobody else can put anything into.
bool isOwn(const std::string& directory)
{
    struct stat status = {};
    return ::lstat(directory.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::geteuid() &&
           (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

std::optional<sockaddr_un> addressOf(const std::string& path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) return std::nullopt;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return address;
}

const sockaddr* general(const sockaddr_un& address) { return reinterpret_cast<const sockaddr*>(&address); }

FileDescriptor makeSocket() { return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)); }

bool isSameUser(int socket)
{
    ucred peer = {};
    socklen_t size = sizeof peer;
    return ::getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == ::geteuid();
}

/// The socket can be read or written before the time is over.
bool isReady(int socket, short what, Clock::time_point end)
{
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        if (left <= 0) return false;
        pollfd wanted{socket, what, 0};
        const int result = ::poll(&wanted, 1, static_cast<int>(left));
        if (result > 0) return true;
        if (result == 0 || errno != EINTR) return false;
    }
}

bool sendAll(int socket, std::string_view bytes, Clock::time_point end)
{
    while (!bytes.empty()) {
        const ssize_t count = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EAGAIN && errno != EINTR) {
            return false;
        } else if (!isReady(socket, POLLOUT, end)) {
            return false;
        }
    }
    return ::shutdown(socket, SHUT_WR) == 0;
}

bool isAccepted(int socket, Clock::time_point end)
{
    std::string answer;
    while (answer.size() < accepted.size() && isReady(socket, POLLIN, end)) {
        char piece[64];
        const ssize_t count = ::recv(socket, piece, sizeof piece, 0);
        if (count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR)) break;
        if (count > 0) answer.append(piece, static_cast<std::size_t>(count));
    }
    return answer == accepted;
}

std::string bytesOf(const InstanceRequest& request)
{
    std::string bytes;
    for (const std::string_view field : {greeting, request.kind == InstanceRequest::Kind::Open ? open : comeForward,
                                         std::string_view(request.path), std::string_view(request.token)})
        (bytes += field) += '\0';
    return bytes;
}

std::vector<std::string_view> fieldsOf(std::string_view bytes)
{
    std::vector<std::string_view> fields;
    for (std::size_t end = bytes.find('\0'); end != std::string_view::npos; end = bytes.find('\0')) {
        fields.push_back(bytes.substr(0, end));
        bytes.remove_prefix(end + 1);
    }
    if (!bytes.empty()) fields.clear(); // cut short
    return fields;
}

} // namespace

std::string instanceSocket(const std::string& runtimeDirectory, const std::string& programDirectory)
{
    const std::string own = runtimeDirectory + "/tarvex";
    if (runtimeDirectory.starts_with('/')) ::mkdir(own.c_str(), S_IRWXU);
    const bool isUsable = runtimeDirectory.starts_with('/') && isOwn(own);
    return isUsable ? own + '/' + nameOf(programDirectory) : programDirectory + "/Tarvex.socket";
}

bool askRunningInstance(const std::string& socket, const InstanceRequest& request, int milliseconds)
{
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    const auto address = addressOf(socket);
    const FileDescriptor connection = makeSocket();
    if (!address || !connection) return false;
    int result = 0;
    do result = ::connect(connection.get(), general(*address), sizeof *address);
    while (result < 0 && errno == EINTR);
    return result == 0 && isSameUser(connection.get()) && sendAll(connection.get(), bytesOf(request), end) &&
           isAccepted(connection.get(), end);
}

FileDescriptor listenForRequests(const std::string& socket)
{
    constexpr int waiting = 16;
    const auto address = addressOf(socket);
    FileDescriptor listening = makeSocket();
    struct stat status = {};
    const bool isLeft = ::lstat(socket.c_str(), &status) == 0 && S_ISSOCK(status.st_mode);
    if (!address || !listening) return {};
    if (isLeft) ::unlink(socket.c_str()); // the caller holds the lock of its program directory
    const mode_t before = ::umask(S_IRWXG | S_IRWXO);
    const int bound = ::bind(listening.get(), general(*address), sizeof *address);
    ::umask(before);
    if (bound < 0 || ::listen(listening.get(), waiting) < 0) return {};
    return listening;
}

FileDescriptor acceptCaller(int listening)
{
    FileDescriptor caller(::accept4(listening, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (caller && !isSameUser(caller.get())) return {};
    return caller;
}

std::optional<InstanceRequest> readRequest(std::string_view bytes)
{
    const auto fields = fieldsOf(bytes);
    if (fields.size() != 4 || fields[0] != greeting) return std::nullopt;
    const bool opens = fields[1] == open;
    if (!opens && fields[1] != comeForward) return std::nullopt;
    return InstanceRequest{opens ? InstanceRequest::Kind::Open : InstanceRequest::Kind::ComeForward,
                           std::string(fields[2]), std::string(fields[3])};
}

std::string_view requestAccepted() { return accepted; }

} // namespace tarvex
