#pragma once

#include "platform/joystick_axes.h"

#include <QObject>

#include <memory>
#include <vector>

class QFileSystemWatcher;
class QSocketNotifier;
class QTimer;

namespace tarvex {

class EvdevReader;
struct SdlJoystickCalls;

/// Joysticks as SDL finds them. The library is loaded at the first start, so that nothing waits for it before. A device
/// with a device file is read from there, when something has come; only others are asked at intervals.
class SdlJoystick final : public QObject, public Joystick {
    Q_OBJECT
public:
    SdlJoystick();
    ~SdlJoystick() override;

    void start() override;
    void stop() override;
    std::vector<JoystickDevice> devices() const override;
    void choose(const JoystickChoice& choice) override;
    std::optional<std::size_t> chosen() const override;
    int joyGetDevCapsA(JOYCAPS& caps) const override;
    int joyGetPosEx(JOYINFOEX& info) const override;

private:
    struct Found;

    void lookForDevices();
    void find();
    void open();
    void close();
    void readDeviceFile();
    void rest(const std::vector<DeviceState>& reports);
    void ask();
    void readState();
    void report(const DeviceState& state);
    void lost();
    const Found* openDevice() const;

    std::unique_ptr<SdlJoystickCalls> m_sdl; ///< none before the first start and without the library
    int m_users = 0;
    std::vector<Found> m_found;
    JoystickChoice m_choice;
    std::optional<std::size_t> m_open; ///< index in m_found
    AxisMap m_axes{};
    DeviceState m_state;
    std::unique_ptr<EvdevReader> m_reader;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    std::int64_t m_read = 0; ///< time of the last report that was read from the file
    QTimer* m_asking;        ///< for a device without a file
    QTimer* m_resting;       ///< until a fast device's file is read again
    QTimer* m_settling;      ///< a device file gets its rights a little after it is made
};

} // namespace tarvex
