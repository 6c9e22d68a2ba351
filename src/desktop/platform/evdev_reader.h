#pragma once

#include "platform/joystick_axes.h"

#include <QString>

#include <memory>
#include <vector>

namespace tarvex {

/// Reads a joystick from its device file as the kernel sends it: each report with its time, no dead zones. The file is
/// opened for reading only.
class EvdevReader {
public:
    /// None: this isn't a device file of the kernel's event interface, may not be read, or the system has none.
    static std::unique_ptr<EvdevReader> open(const QString& path);
    ~EvdevReader();
    EvdevReader(const EvdevReader&) = delete;
    EvdevReader& operator=(const EvdevReader&) = delete;

    /// To wait for reports with.
    int descriptor() const;
    /// Its axes, buttons and hats; name and GUID are left to others.
    const JoystickDevice& description() const;
    const DeviceState& state() const;

    struct Read {
        std::vector<DeviceState> reports;
        bool gone = false; ///< the device was unplugged
    };
    /// What has come since the last call, without waiting.
    Read read();

private:
    struct Device;
    explicit EvdevReader(std::unique_ptr<Device> device);
    std::unique_ptr<Device> m_device;
};

} // namespace tarvex
