#pragma once

#include "platform/joystick.h"

namespace tarvex {

/// The kernel's codes of axes.
namespace axisCode {
constexpr int x = 0;
constexpr int y = 1;
constexpr int z = 2;
constexpr int twist = 5;
constexpr int throttle = 6;
constexpr int rudder = 7;
constexpr int hats = 16; ///< two codes a hat
constexpr int hatsEnd = 24;
} // namespace axisCode

/// The name of an axis by its code, e.g. "Throttle".
std::string axisName(int code, std::size_t index);

/// Indexes in JoystickDevice::axes by axisRole; noAxis where the device has none.
using AxisMap = std::array<int, axisRole::count>;

/// Which axis is which by what the device says of them. One that says nothing has X, Y, throttle and rudder in this
/// order.
AxisMap guessAxes(const JoystickDevice& device);
/// The same with the user's choices, as far as the device has these axes.
AxisMap axesOf(const JoystickDevice& device, const JoystickChoice& choice);

/// Index of the chosen one in `devices`, or of the first when it isn't there; none without devices.
std::optional<std::size_t> indexOf(const JoystickChoice& choice, const std::vector<JoystickDevice>& devices);
/// How many devices before this one are like it.
int numberAmongAlike(const std::vector<JoystickDevice>& devices, std::size_t index);

/// A value of the device on the scale from 0 to 65535. Values beyond the bounds are cut; a range of nothing gives the
/// centre.
std::uint16_t axisPosition(int value, int minimum, int maximum);

/// A hat in hundredths of a degree; `x` grows to the right, `y` downwards.
std::uint32_t hatAngle(int x, int y);

/// What a device reports, its axes from 0 to 65535.
struct DeviceState {
    std::int64_t microseconds = 0;
    std::array<std::uint16_t, mostAxes> axes{};
    std::bitset<mostButtons> buttons;
    std::array<std::uint32_t, mostHats> hats{povCentred, povCentred, povCentred, povCentred};
};
JoystickReport reportOf(const DeviceState& state, const AxisMap& axes);
JOYCAPS capsOf(const JoystickDevice& device, const AxisMap& axes);

} // namespace tarvex
