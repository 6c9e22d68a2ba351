#include "desktop/platform/instance_calls.h"

#include "desktop/bind.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QWindow>

#include <array>
#include <cerrno>
#include <memory>
#include <sys/socket.h>
#include <unistd.h>

namespace tarvex {

namespace {

constexpr int mostCallers = 16;
constexpr std::size_t mostWaiting = 64;
// Milliseconds.
constexpr int patience = 1000;
constexpr int soon = 10;

/// One process that says what it wants; gone when that is said, or when it takes too long.
class Caller : public QObject {
public:
    Caller(FileDescriptor socket, QObject* parent, std::function<void(const InstanceRequest&)> hear)
        : QObject(parent), m_socket(std::move(socket)), m_hear(std::move(hear)),
          m_notifier(m_socket.get(), QSocketNotifier::Read)
    {
        connect(&m_notifier, &QSocketNotifier::activated, this, [this] { read(); });
        QTimer::singleShot(patience, this, [this] { end(); });
    }

private:
    void read()
    {
        std::array<char, 4096> piece;
        const ssize_t count = ::recv(m_socket.get(), piece.data(), piece.size(), 0);
        if (count > 0) {
            m_bytes.append(piece.data(), static_cast<std::size_t>(count));
            if (m_bytes.size() > longestRequest) end();
            return;
        }
        if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
        end(); // first: the end of the request can be read again and again
        const auto request = count == 0 ? readRequest(m_bytes) : std::nullopt;
        if (request) answer(*request);
    }
    void answer(const InstanceRequest& request)
    {
        const std::string_view text = requestAccepted();
        ::send(m_socket.get(), text.data(), text.size(), MSG_NOSIGNAL);
        m_hear(request);
    }
    void end()
    {
        m_notifier.setEnabled(false);
        deleteLater();
    }

    FileDescriptor m_socket;
    std::function<void(const InstanceRequest&)> m_hear;
    QSocketNotifier m_notifier;
    std::string m_bytes;
};

} // namespace

/// While the program waits for a loader, or for Esc, its ticks are held: they come again, and the first that arrives
/// finds the program idle.
InstanceCalls::InstanceCalls()
{
    m_next.setObjectName(QLatin1String(tickName));
    m_next.setSingleShot(true);
    m_next.setInterval(soon);
    connect(&m_next, &QTimer::timeout, this, &InstanceCalls::fulfilNext);
}

InstanceCalls::~InstanceCalls()
{
    if (m_listening) ::unlink(m_path.c_str());
}

void InstanceCalls::listen(const std::string& socket)
{
    m_path = socket;
    m_listening = listenForRequests(socket);
    if (!m_listening) return;
    auto* notifier = new QSocketNotifier(m_listening.get(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &InstanceCalls::accept);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &InstanceCalls::lookSoon);
}

void InstanceCalls::accept()
{
    FileDescriptor socket = acceptCaller(m_listening.get());
    if (!socket || m_callers >= mostCallers) return;
    ++m_callers;
    auto* caller = new Caller(std::move(socket), this, [this](const InstanceRequest& request) { hear(request); });
    connect(caller, &QObject::destroyed, this, [this] { --m_callers; });
}

void InstanceCalls::hear(const InstanceRequest& request)
{
    if (m_waiting.size() < mostWaiting) m_waiting.push_back(request);
    lookSoon();
}

void InstanceCalls::fulfil()
{
    m_ready = true;
    lookSoon();
}

void InstanceCalls::lookSoon()
{
    if (!m_waiting.empty()) m_next.start();
}

/// What is asked for while a box is up waits until the box has gone, and with it the keyboard has moved.
void InstanceCalls::fulfilNext()
{
    if (!m_ready || m_waiting.empty() || QApplication::activeModalWidget() != nullptr) return;
    const InstanceRequest request = std::move(m_waiting.front());
    m_waiting.pop_front();
    emit wanted(request); // may wait for the user, and so come here again
    fulfilNext();
}

} // namespace tarvex
