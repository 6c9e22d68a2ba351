#pragma once

#include "platform/signal.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarvex {

/// What the calls on a joystick return.
namespace joyError {
constexpr int none = 0;
constexpr int noDriver = 6; ///< this system can't read joysticks
constexpr int unplugged = 167;
} // namespace joyError

/// Bits of JOYCAPS::wCaps.
namespace joyCaps {
constexpr std::uint32_t hasZ = 1; ///< a throttle
constexpr std::uint32_t hasR = 2; ///< rudders
constexpr std::uint32_t hasPov = 16;
} // namespace joyCaps

constexpr std::uint32_t axisCentre = 32768;
constexpr std::uint32_t axisLast = 65535;
constexpr std::uint32_t povCentred = 65535;

struct JOYCAPS {
    std::string szPname;
    std::uint32_t wCaps = 0;
    std::uint32_t wNumAxes = 0;
    std::uint32_t wNumButtons = 0;
};

/// Positions of axes go from 0 to 65535.
struct JOYINFOEX {
    std::uint32_t dwSize = 52;
    std::uint32_t dwFlags = 255;
    std::uint32_t dwXpos = axisCentre;
    std::uint32_t dwYpos = axisCentre;
    std::uint32_t dwZpos = axisCentre; ///< throttle
    std::uint32_t dwRpos = axisCentre; ///< rudders
    std::uint32_t dwButtons = 0;       ///< bit 0 is the first button
    std::uint32_t dwPOV = povCentred;  ///< the first hat, in hundredths of a degree clockwise from up
    bool operator==(const JOYINFOEX&) const = default;
};

constexpr std::size_t mostButtons = 128;
constexpr std::size_t mostHats = 4;
constexpr std::size_t mostAxes = 32;

/// What a device sent at one moment, with what the record of the position has no room for.
struct JoystickReport {
    JOYINFOEX position;
    std::int64_t microseconds = 0; ///< of a clock that never goes back
    std::bitset<mostButtons> buttons;
    std::array<std::uint32_t, mostHats> hats{povCentred, povCentred, povCentred, povCentred};
};

/// An axis as the device describes it.
struct JoystickAxis {
    std::string name;
    int code = -1; ///< what the kernel says that it is; -1: unknown
    int minimum = -32768;
    int maximum = 32767;
    int flat = 0; ///< units around the centre that the kernel asks programs to ignore
    int fuzz = 0; ///< changes below it are swallowed by the kernel
};

struct JoystickDevice {
    std::string name; ///< UTF-8
    std::string guid; ///< the same for all devices of a kind
    std::vector<JoystickAxis> axes;
    int buttons = 0;
    int hats = 0;
};

/// Values of JoystickChoice::axes beside an index in JoystickDevice::axes.
constexpr int axisByGuess = -1;
constexpr int noAxis = -2;

/// Index of an axis of the record.
namespace axisRole {
constexpr std::size_t x = 0;
constexpr std::size_t y = 1;
constexpr std::size_t throttle = 2;
constexpr std::size_t rudder = 3;
constexpr std::size_t count = 4;
} // namespace axisRole

/// What stands for the joystick. A device is known by name and GUID; with none, or when it isn't there, the first one
/// is taken.
struct JoystickChoice {
    std::string name;
    std::string guid;
    int number = 0; ///< of several that are alike, in the order of Joystick::devices, from 0
    std::array<int, axisRole::count> axes{axisByGuess, axisByGuess, axisByGuess, axisByGuess};
    bool operator==(const JoystickChoice&) const = default;
};

/// The joystick, device 0. It is only read from.
class Joystick {
public:
    virtual ~Joystick() = default;

    /// Opens the chosen device and follows it until the matching stop; calls nest.
    virtual void start() = 0;
    virtual void stop() = 0;
    /// Those that are plugged in, while it is started.
    virtual std::vector<JoystickDevice> devices() const = 0;
    virtual void choose(const JoystickChoice& choice) = 0;
    /// The open device's index in devices(); none while there is none.
    virtual std::optional<std::size_t> chosen() const = 0;

    /// A value of joyError or any other error of the system.
    virtual int joyGetDevCapsA(JOYCAPS& caps) const = 0;
    virtual int joyGetPosEx(JOYINFOEX& info) const = 0;

    Signal<const JoystickReport&> reported; ///< each report of the device, in their order
    Signal<> devicesChanged;                ///< a device came or went, or another one was opened
};

} // namespace tarvex
