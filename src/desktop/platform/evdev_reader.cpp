#include "desktop/platform/evdev_reader.h"

#ifdef TARVEX_EVDEV

#include <QFile>

#include <fcntl.h>
#include <libevdev/libevdev.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <ctime>

namespace tarvex {

namespace {

constexpr unsigned firstHat = ABS_HAT0X;
constexpr unsigned lastHat = ABS_HAT3Y;
constexpr unsigned firstJoystickButton = BTN_JOYSTICK;
constexpr unsigned firstOtherButton = BTN_MISC;

bool isHat(unsigned code) { return code >= firstHat && code <= lastHat; }

} // namespace

struct EvdevReader::Device {
    ~Device()
    {
        if (device != nullptr) libevdev_free(device);
        if (file >= 0) ::close(file);
    }

    int file = -1;
    libevdev* device = nullptr;
    JoystickDevice description;
    DeviceState state;
    std::array<int, ABS_CNT> axisAt{};   ///< index of an axis by its code; -1: none
    std::array<int, KEY_CNT> buttonAt{}; ///< likewise
    std::array<int, 2 * mostHats> hats{};
    bool resynchronising = false; ///< the kernel's buffer ran over

    void describe();
    void addButtons(unsigned from, unsigned to);
    void take(unsigned type, unsigned code, int value);
    void takeNow();
};

void EvdevReader::Device::addButtons(unsigned from, unsigned to)
{
    for (unsigned code = from; code < to; ++code) {
        if (libevdev_has_event_code(device, EV_KEY, code) == 0) continue;
        if (description.buttons < static_cast<int>(mostButtons)) buttonAt[code] = description.buttons++;
    }
}

void EvdevReader::Device::describe()
{
    axisAt.fill(-1);
    buttonAt.fill(-1);
    for (unsigned code = 0; code < ABS_CNT; ++code) {
        const input_absinfo* range = libevdev_get_abs_info(device, code);
        if (range == nullptr) continue;
        if (isHat(code)) {
            description.hats = std::max(description.hats, static_cast<int>((code - firstHat) / 2 + 1));
            continue;
        }
        if (description.axes.size() == mostAxes) continue;
        const std::size_t index = description.axes.size();
        axisAt[code] = static_cast<int>(index);
        description.axes.push_back({axisName(static_cast<int>(code), index), static_cast<int>(code), range->minimum,
                                    range->maximum, range->flat, range->fuzz});
    }
    addButtons(firstJoystickButton, KEY_CNT); // a stick's own buttons come before those that keyboards have, too
    addButtons(firstOtherButton, firstJoystickButton);
}

void EvdevReader::Device::take(unsigned type, unsigned code, int value)
{
    if (type == EV_KEY && code < KEY_CNT && buttonAt[code] >= 0) {
        state.buttons.set(static_cast<std::size_t>(buttonAt[code]), value != 0);
    } else if (type == EV_ABS && isHat(code)) {
        const std::size_t hat = (code - firstHat) / 2;
        hats[code - firstHat] = value;
        state.hats[hat] = hatAngle(hats[2 * hat], hats[2 * hat + 1]);
    } else if (type == EV_ABS && code < ABS_CNT && axisAt[code] >= 0) {
        const auto index = static_cast<std::size_t>(axisAt[code]);
        const JoystickAxis& axis = description.axes[index];
        state.axes[index] = axisPosition(value, axis.minimum, axis.maximum);
    }
}

/// Where everything stands when the device is opened.
void EvdevReader::Device::takeNow()
{
    for (const unsigned type : {EV_ABS, EV_KEY}) {
        const unsigned codes = type == EV_ABS ? ABS_CNT : KEY_CNT;
        for (unsigned code = 0; code < codes; ++code) {
            int value = 0;
            if (libevdev_fetch_event_value(device, type, code, &value) != 0) take(type, code, value);
        }
    }
}

std::unique_ptr<EvdevReader> EvdevReader::open(const QString& path)
{
    auto device = std::make_unique<Device>();
    device->file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (device->file < 0 || libevdev_new_from_fd(device->file, &device->device) != 0) return nullptr;
    libevdev_set_clock_id(device->device, CLOCK_MONOTONIC);
    device->describe();
    device->takeNow();
    return std::unique_ptr<EvdevReader>(new EvdevReader(std::move(device)));
}

EvdevReader::EvdevReader(std::unique_ptr<Device> device) : m_device(std::move(device)) {}

EvdevReader::~EvdevReader() = default;

int EvdevReader::descriptor() const { return m_device->file; }

const JoystickDevice& EvdevReader::description() const { return m_device->description; }

const DeviceState& EvdevReader::state() const { return m_device->state; }

EvdevReader::Read EvdevReader::read()
{
    constexpr std::int64_t second = 1'000'000;
    Read result;
    Device& device = *m_device;
    input_event event{};
    for (;;) {
        const unsigned flags = device.resynchronising ? LIBEVDEV_READ_FLAG_SYNC : LIBEVDEV_READ_FLAG_NORMAL;
        const int status = libevdev_next_event(device.device, flags, &event);
        if (status == -EAGAIN && device.resynchronising) {
            device.resynchronising = false;
            continue;
        }
        if (status < 0) {
            result.gone = status != -EAGAIN && status != -EINTR;
            return result;
        }
        device.resynchronising = status == LIBEVDEV_READ_STATUS_SYNC;
        if (event.type != EV_SYN) {
            device.take(event.type, event.code, event.value);
        } else if (event.code == SYN_REPORT) {
            device.state.microseconds = event.input_event_sec * second + event.input_event_usec;
            result.reports.push_back(device.state);
        }
    }
}

} // namespace tarvex

#else

namespace tarvex {

struct EvdevReader::Device {
    JoystickDevice description;
    DeviceState state;
};

std::unique_ptr<EvdevReader> EvdevReader::open(const QString&) { return nullptr; }

EvdevReader::EvdevReader(std::unique_ptr<Device> device) : m_device(std::move(device)) {}

EvdevReader::~EvdevReader() = default;

int EvdevReader::descriptor() const { return -1; }

const JoystickDevice& EvdevReader::description() const { return m_device->description; }

const DeviceState& EvdevReader::state() const { return m_device->state; }

EvdevReader::Read EvdevReader::read() { return {}; }

} // namespace tarvex

#endif
