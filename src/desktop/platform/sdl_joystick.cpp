#include "desktop/platform/sdl_joystick.h"

#include "desktop/platform/evdev_reader.h"
#include "desktop/platform/sdl_joystick_calls.h"

#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarvex {

namespace {

constexpr int askMilliseconds = 1;    // for what an open device has sent
constexpr int lookMilliseconds = 500; // for devices, where the system doesn't report them
constexpr int settleMilliseconds = 300;

// A device that reports often is read at intervals, which halves the cost at 1,000 reports a second. The kernel keeps
// at least eight reports.
constexpr int longestRest = 2;                  // milliseconds
constexpr int reportsInRest = 3;                // at most
constexpr std::int64_t fastMicroseconds = 4000; // between two reports

/// Where the system makes its device files; devices appear there without anybody asking.
QString deviceFolder() { return QStringLiteral("/dev/input"); }

std::int64_t now()
{
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}

std::uint32_t hatAngleOf(Uint8 hat)
{
    const int x = ((hat & SDL_HAT_RIGHT) != 0 ? 1 : 0) - ((hat & SDL_HAT_LEFT) != 0 ? 1 : 0);
    const int y = ((hat & SDL_HAT_DOWN) != 0 ? 1 : 0) - ((hat & SDL_HAT_UP) != 0 ? 1 : 0);
    return hatAngle(x, y);
}

JoystickDevice describe(const SdlJoystickCalls& sdl, SDL_Joystick* joystick)
{
    JoystickDevice device;
    const int axes = std::clamp(sdl.axes(joystick), 0, static_cast<int>(mostAxes));
    for (int i = 0; i < axes; ++i) device.axes.push_back({.name = axisName(-1, static_cast<std::size_t>(i))});
    device.buttons = std::clamp(sdl.buttons(joystick), 0, static_cast<int>(mostButtons));
    device.hats = std::clamp(sdl.hats(joystick), 0, static_cast<int>(mostHats));
    return device;
}

/// Takes the calls into use. False: the library or its joysticks aren't there.
bool begin(SdlJoystickCalls& sdl)
{
    if (!sdl.load()) return false;
    sdl.setHint(SDL_HINT_LINUX_JOYSTICK_DEADZONES, "0");
    sdl.setHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
    sdl.setHint(SDL_HINT_JOYSTICK_HIDAPI, "0"); // it writes to some devices to set them up
    sdl.setHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    // SDL then watches the device files themselves and sees them at the same moment as this program. What it starts
    // later must not inherit the choice.
    qputenv("SDL_JOYSTICK_DISABLE_UDEV", "1");
    const bool begun = sdl.initSubSystem(SDL_INIT_JOYSTICK) == 0;
    qunsetenv("SDL_JOYSTICK_DISABLE_UDEV");
    return begun;
}

} // namespace

/// A device that is plugged in. Those without a device file that can be read are held open by SDL.
struct SdlJoystick::Found {
    JoystickDevice device;
    QString path;
    SDL_Joystick* handle = nullptr;
};

SdlJoystick::SdlJoystick() : m_asking(new QTimer(this)), m_resting(new QTimer(this)), m_settling(new QTimer(this))
{
    for (QTimer* timer : {m_asking, m_resting}) timer->setTimerType(Qt::PreciseTimer);
    connect(m_asking, &QTimer::timeout, this, &SdlJoystick::ask);
    m_resting->setSingleShot(true);
    connect(m_resting, &QTimer::timeout, this, &SdlJoystick::readDeviceFile);
    m_settling->setSingleShot(true);
    m_settling->setInterval(settleMilliseconds);
    connect(m_settling, &QTimer::timeout, this, &SdlJoystick::lookForDevices);
}

SdlJoystick::~SdlJoystick()
{
    if (m_users > 0) {
        m_users = 1;
        stop();
    }
}

void SdlJoystick::start()
{
    if (m_users++ > 0) return;
    auto sdl = std::make_unique<SdlJoystickCalls>();
    if (!begin(*sdl)) return;
    m_sdl = std::move(sdl);
    if (QFileInfo(deviceFolder()).isDir()) {
        m_watcher = std::make_unique<QFileSystemWatcher>(QStringList{deviceFolder()});
        connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, this, [this] {
            lookForDevices();
            m_settling->start();
        });
    }
    SDL_Event old; // of devices that are found here anyway
    while (m_sdl->pollEvent(&old) != 0) {
    }
    find();
    open();
}

void SdlJoystick::stop()
{
    if (--m_users > 0 || !m_sdl) return;
    m_settling->stop();
    m_watcher.reset();
    close();
    for (const Found& found : m_found)
        if (found.handle != nullptr) m_sdl->close(found.handle);
    m_found.clear();
    m_sdl->quitSubSystem(SDL_INIT_JOYSTICK);
    m_sdl.reset();
}

std::vector<JoystickDevice> SdlJoystick::devices() const
{
    std::vector<JoystickDevice> devices;
    for (const Found& found : m_found) devices.push_back(found.device);
    return devices;
}

void SdlJoystick::choose(const JoystickChoice& choice)
{
    if (choice == m_choice) return;
    m_choice = choice;
    if (!m_sdl) return;
    close();
    open();
    devicesChanged();
}

std::optional<std::size_t> SdlJoystick::chosen() const { return m_open; }

int SdlJoystick::joyGetDevCapsA(JOYCAPS& caps) const
{
    if (!m_sdl) return joyError::noDriver;
    const Found* found = openDevice();
    if (found == nullptr) return joyError::unplugged;
    caps = capsOf(found->device, m_axes);
    return joyError::none;
}

int SdlJoystick::joyGetPosEx(JOYINFOEX& info) const
{
    if (!m_sdl) return joyError::noDriver;
    if (openDevice() == nullptr) return joyError::unplugged;
    info = reportOf(m_state, m_axes).position;
    return joyError::none;
}

const SdlJoystick::Found* SdlJoystick::openDevice() const { return m_open ? &m_found[*m_open] : nullptr; }

// ---- finding devices ------------------------------------------------------------------------------------------------

/// Has SDL look at the system, and opens the chosen device anew when the list is another one.
void SdlJoystick::lookForDevices()
{
    if (!m_sdl) return;
    m_sdl->update();
    bool changed = false;
    SDL_Event event;
    while (m_sdl->pollEvent(&event) != 0)
        changed = changed || event.type == SDL_JOYDEVICEADDED || event.type == SDL_JOYDEVICEREMOVED;
    if (!changed) return;
    close();
    find();
    open();
    devicesChanged();
}

void SdlJoystick::find()
{
    for (const Found& found : m_found)
        if (found.handle != nullptr) m_sdl->close(found.handle);
    m_found.clear();
    for (int i = 0; i < m_sdl->count(); ++i) {
        Found found;
        found.path = QString::fromUtf8(m_sdl->pathForIndex(i));
        if (const auto reader = found.path.isEmpty() ? nullptr : EvdevReader::open(found.path)) {
            found.device = reader->description();
        } else {
            found.path.clear();
            found.handle = m_sdl->open(i);
            if (found.handle == nullptr) continue;
            found.device = describe(*m_sdl, found.handle);
        }
        const char* name = m_sdl->nameForIndex(i);
        found.device.name = name != nullptr ? QString::fromUtf8(name).toStdString() : "Joystick";
        char guid[33] = {};
        m_sdl->guidText(m_sdl->guidForIndex(i), guid, sizeof guid);
        found.device.guid = guid;
        m_found.push_back(std::move(found));
    }
}

void SdlJoystick::open()
{
    m_open = indexOf(m_choice, devices());
    m_state = {};
    for (auto& axis : m_state.axes) axis = axisCentre;
    if (!m_open) {
        if (!m_watcher) m_asking->start(lookMilliseconds);
        return;
    }
    const Found& found = m_found[*m_open];
    m_axes = axesOf(found.device, m_choice);
    if (found.handle != nullptr) {
        m_sdl->update();
        readState();
        m_asking->start(askMilliseconds);
        return;
    }
    m_reader = EvdevReader::open(found.path);
    if (!m_reader) { // it was unplugged since it was found
        m_open.reset();
        return;
    }
    m_state = m_reader->state();
    m_read = 0;
    m_notifier = std::make_unique<QSocketNotifier>(m_reader->descriptor(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &SdlJoystick::readDeviceFile);
}

void SdlJoystick::close()
{
    m_asking->stop();
    m_resting->stop();
    if (m_notifier) {
        m_notifier->setEnabled(false);
        m_notifier.release()->deleteLater(); // it may be the one that fired
    }
    m_reader.reset();
    m_open.reset();
}

void SdlJoystick::lost()
{
    close();
    devicesChanged();
    m_settling->start(); // SDL notices a little later
}

// ---- reading --------------------------------------------------------------------------------------------------------

void SdlJoystick::report(const DeviceState& state)
{
    m_state = state;
    reported(reportOf(state, m_axes));
}

void SdlJoystick::readDeviceFile()
{
    if (!m_reader) return;
    const EvdevReader* reader = m_reader.get();
    const EvdevReader::Read result = m_reader->read();
    for (const DeviceState& state : result.reports) {
        report(state);
        if (m_reader.get() != reader) return; // a listener chose another device
    }
    if (result.gone) return lost();
    rest(result.reports);
}

/// Decides when the device file is read again: when something comes, or a little after these reports.
void SdlJoystick::rest(const std::vector<DeviceState>& reports)
{
    std::int64_t interval = fastMicroseconds;
    if (!reports.empty()) {
        const std::int64_t last = reports.back().microseconds;
        interval = (last - std::exchange(m_read, last)) / static_cast<std::int64_t>(reports.size());
    }
    const auto milliseconds =
        static_cast<int>(std::clamp<std::int64_t>(reportsInRest * interval / 1000, 0, longestRest));
    const bool rests = interval < fastMicroseconds && milliseconds > 0;
    m_notifier->setEnabled(!rests);
    if (rests) m_resting->start(milliseconds);
}

/// All values of a device that SDL reads.
void SdlJoystick::readState()
{
    const Found& found = m_found[*m_open];
    for (std::size_t i = 0; i < found.device.axes.size(); ++i)
        m_state.axes[i] =
            axisPosition(m_sdl->axis(found.handle, static_cast<int>(i)), SDL_JOYSTICK_AXIS_MIN, SDL_JOYSTICK_AXIS_MAX);
    for (int i = 0; i < found.device.buttons; ++i)
        m_state.buttons.set(static_cast<std::size_t>(i), m_sdl->button(found.handle, i) != 0);
    for (int i = 0; i < found.device.hats; ++i)
        m_state.hats[static_cast<std::size_t>(i)] = hatAngleOf(m_sdl->hat(found.handle, i));
    m_state.microseconds = now();
}

/// SDL reads and keeps one state; each time that it has changed is a report.
void SdlJoystick::ask()
{
    m_sdl->update();
    bool moved = false;
    bool changed = false;
    const SDL_JoystickID own = m_open ? m_sdl->instance(m_found[*m_open].handle) : -1;
    SDL_Event event;
    while (m_sdl->pollEvent(&event) != 0) {
        changed = changed || event.type == SDL_JOYDEVICEADDED || event.type == SDL_JOYDEVICEREMOVED;
        moved = moved || (event.type >= SDL_JOYAXISMOTION && event.type <= SDL_JOYBUTTONUP && event.jaxis.which == own);
    }
    if (changed) {
        close();
        find();
        open();
        devicesChanged();
        return;
    }
    if (!moved || !m_open) return;
    readState();
    report(DeviceState(m_state));
}

} // namespace tarvex
