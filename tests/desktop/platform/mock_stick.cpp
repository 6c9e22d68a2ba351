#include "mock_stick.h"

#include <umockdev.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvex {

namespace {

constexpr const char* file = MockStick::file;

void check(const GError* error)
{
    if (error != nullptr) throw std::runtime_error(error->message);
}

template <typename T> std::string bytesOf(const T& value)
{
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

void setBit(std::string& bits, unsigned bit)
{
    const std::size_t at = bit / 8;
    if (at < bits.size()) bits[at] = static_cast<char>(bits[at] | 1 << bit % 8);
}

} // namespace

struct MockStick::World {
    explicit World(MockStick& stick)
    {
        g_signal_connect(requests, "handle-ioctl", G_CALLBACK(answer), &stick);
        g_signal_connect(requests, "handle-read", G_CALLBACK(refuse), &stick);
    }
    ~World()
    {
        g_object_unref(testbed);
        g_object_unref(requests);
    }

    UMockdevTestbed* testbed = umockdev_testbed_new();
    UMockdevIoctlBase* requests = umockdev_ioctl_base_new();

    static gboolean answer(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer self);
    static gboolean refuse(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer self);
};

MockStick::MockStick() : m_world(std::make_unique<World>(*this)) {}

MockStick::~MockStick()
{
    if (m_port >= 0) ::close(m_port);
    if (m_pipe.empty()) return;
    ::unlink(m_pipe.c_str());
    umockdev_testbed_detach_ioctl(m_world->testbed, file, nullptr);
}

/// umockdev's own device file is a terminal, from which a reader may get half an event, and can't be made twice. A pipe
/// takes a report as a whole.
void MockStick::plug()
{
    if (m_pipe.empty()) describe();
    if (m_port >= 0) ::close(m_port);
    if (::mkfifo(m_pipe.c_str(), 0600) != 0)
        throw std::runtime_error(m_pipe + " can't be made: " + std::strerror(errno));
    m_port = ::open(m_pipe.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    m_gone = false;
}

void MockStick::describe()
{
    GError* error = nullptr;
    umockdev_testbed_add_from_string(
        m_world->testbed,
        "P: /devices/home/input/input7/event7\nN: input/event7\nE: DEVNAME=/dev/input/event7\n"
        "E: SUBSYSTEM=input\nE: ID_INPUT=1\nE: ID_INPUT_JOYSTICK=1\n",
        &error);
    check(error);
    umockdev_testbed_attach_ioctl(m_world->testbed, file, m_world->requests, &error);
    check(error);
    m_pipe = std::getenv("UMOCKDEV_DIR") + std::string(file);
    ::unlink(m_pipe.c_str());
}

/// The file is gone at once; what is still open gets an error from then on, and is woken up for it.
void MockStick::unplug()
{
    m_gone = true;
    ::unlink(m_pipe.c_str());
    const input_event wake{};
    if (::write(m_port, &wake, sizeof wake) < 0) throw std::runtime_error("the reader isn't woken up");
}

void MockStick::send(const std::vector<Change>& changes, std::int64_t microseconds)
{
    constexpr std::int64_t second = 1'000'000;
    std::string bytes;
    const auto add = [&](unsigned type, unsigned code, int value) {
        input_event event{};
        event.input_event_sec = microseconds / second;
        event.input_event_usec = microseconds % second;
        event.type = static_cast<std::uint16_t>(type);
        event.code = static_cast<std::uint16_t>(code);
        event.value = value;
        bytes += bytesOf(event);
    };
    for (const Change& change : changes) add(change.type, change.code, change.value);
    add(EV_SYN, SYN_REPORT, 0);
    pollfd room{m_port, POLLOUT, 0};
    constexpr int patience = 20'000; // milliseconds, for a reader that is slower
    ::poll(&room, 1, patience);
    if (::write(m_port, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
        throw std::runtime_error(std::string("a report isn't sent: ") + std::strerror(errno));
}

/// What the kernel would fill the program's buffer with, by the number of the request.
std::string MockStick::contents(unsigned number, std::size_t size) const
{
    constexpr unsigned bits = 0x20;
    constexpr unsigned ranges = 0x40;
    std::string all(size, '\0');
    if (number == _IOC_NR(EVIOCGVERSION)) return bytesOf(EV_VERSION);
    if (number == _IOC_NR(EVIOCGID)) return bytesOf(input_id{BUS_USB, 0x1209, 0x0f22, 1});
    if (number == _IOC_NR(EVIOCGNAME(0))) return name + '\0';
    if (number == bits)
        for (const unsigned type : {EV_SYN, EV_KEY, EV_ABS}) setBit(all, type);
    if (number == bits + EV_KEY)
        for (const unsigned code : buttons) setBit(all, code);
    for (const Axis& axis : axes) {
        if (number == bits + EV_ABS) setBit(all, axis.code);
        if (number == ranges + axis.code)
            return bytesOf(input_absinfo{axis.value, axis.minimum, axis.maximum, axis.fuzz, axis.flat, 0});
    }
    return all;
}

gboolean MockStick::World::answer(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer self)
{
    auto& stick = *static_cast<MockStick*>(self);
    const gulong request = umockdev_ioctl_client_get_request(client);
    if (_IOC_TYPE(request) != 'E') return FALSE;
    const bool isClock = _IOC_NR(request) == _IOC_NR(EVIOCSCLOCKID); // of the reader, not of the device
    if (_IOC_DIR(request) != _IOC_READ) {
        if (!isClock) ++stick.writes;
        umockdev_ioctl_client_complete(client, 0, 0);
        return TRUE;
    }
    std::string answer = stick.contents(_IOC_NR(request), _IOC_SIZE(request));
    answer.resize(std::min<std::size_t>(answer.size(), _IOC_SIZE(request)));
    UMockdevIoctlData* buffer =
        umockdev_ioctl_data_resolve(umockdev_ioctl_client_get_arg(client), 0, _IOC_SIZE(request), nullptr);
    umockdev_ioctl_data_update(buffer, 0, reinterpret_cast<guint8*>(answer.data()), static_cast<gint>(answer.size()));
    umockdev_ioctl_data_unref(buffer);
    umockdev_ioctl_client_complete(client, static_cast<glong>(answer.size()), 0);
    return TRUE;
}

gboolean MockStick::World::refuse(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer self)
{
    if (!static_cast<MockStick*>(self)->m_gone) return FALSE;
    umockdev_ioctl_client_complete(client, -1, ENODEV);
    return TRUE;
}

} // namespace tarvex
