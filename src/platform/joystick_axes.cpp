#include "platform/joystick_axes.h"

#include <algorithm>
#include <initializer_list>

namespace tarvex {

namespace {

constexpr const char* names[] = {"X",        "Y",      "Z",     "X rotation", "Y rotation", "Twist",
                                 "Throttle", "Rudder", "Wheel", "Gas",        "Brake"};

int axisWith(const JoystickDevice& device, std::initializer_list<int> codes)
{
    for (const int code : codes) {
        const auto found = std::ranges::find(device.axes, code, &JoystickAxis::code);
        if (found != device.axes.end()) return static_cast<int>(found - device.axes.begin());
    }
    return noAxis;
}

} // namespace

std::string axisName(int code, std::size_t index)
{
    if (code >= 0 && static_cast<std::size_t>(code) < std::size(names)) return names[code];
    return "Axis " + std::to_string(index + 1);
}

AxisMap guessAxes(const JoystickDevice& device)
{
    const bool knowsCodes = std::ranges::any_of(device.axes, [](const JoystickAxis& axis) { return axis.code >= 0; });
    if (knowsCodes)
        return {axisWith(device, {axisCode::x}), axisWith(device, {axisCode::y}),
                axisWith(device, {axisCode::throttle, axisCode::z}),
                axisWith(device, {axisCode::rudder, axisCode::twist})};
    AxisMap inOrder{};
    const int last = static_cast<int>(device.axes.size()) - 1;
    for (int i = 0; i < static_cast<int>(inOrder.size()); ++i)
        inOrder[static_cast<std::size_t>(i)] = i <= last ? i : noAxis;
    return inOrder;
}

AxisMap axesOf(const JoystickDevice& device, const JoystickChoice& choice)
{
    AxisMap axes = guessAxes(device);
    const int count = static_cast<int>(std::min(device.axes.size(), mostAxes));
    for (std::size_t role = 0; role < axes.size(); ++role) {
        const int wanted = choice.axes[role];
        if (wanted == noAxis || (wanted >= 0 && wanted < count)) axes[role] = wanted;
        if (axes[role] >= count) axes[role] = noAxis;
    }
    return axes;
}

std::optional<std::size_t> indexOf(const JoystickChoice& choice, const std::vector<JoystickDevice>& devices)
{
    if (devices.empty()) return {};
    for (std::size_t i = 0; i < devices.size(); ++i) {
        const bool isAlike = devices[i].name == choice.name && devices[i].guid == choice.guid;
        if (isAlike && numberAmongAlike(devices, i) == choice.number) return i;
    }
    return 0;
}

int numberAmongAlike(const std::vector<JoystickDevice>& devices, std::size_t index)
{
    const JoystickDevice& device = devices[index];
    return static_cast<int>(std::count_if(
        devices.begin(), devices.begin() + static_cast<std::ptrdiff_t>(index),
        [&](const JoystickDevice& other) { return other.name == device.name && other.guid == device.guid; }));
}

std::uint16_t axisPosition(int value, int minimum, int maximum)
{
    if (minimum >= maximum) return axisCentre;
    const std::int64_t range = static_cast<std::int64_t>(maximum) - minimum;
    const std::int64_t at = static_cast<std::int64_t>(std::clamp(value, minimum, maximum)) - minimum;
    return static_cast<std::uint16_t>((at * axisLast + range / 2) / range);
}

std::uint32_t hatAngle(int x, int y)
{
    constexpr std::uint32_t angles[3][3] = {
        {31500, 0, 4500}, {27000, povCentred, 9000}, {22500, 18000, 13500}}; // by y and x from -1
    return angles[std::clamp(y, -1, 1) + 1][std::clamp(x, -1, 1) + 1];
}

JoystickReport reportOf(const DeviceState& state, const AxisMap& axes)
{
    const auto at = [&](std::size_t role) -> std::uint32_t {
        return axes[role] < 0 ? axisCentre : state.axes[static_cast<std::size_t>(axes[role])];
    };
    JoystickReport report;
    report.position.dwXpos = at(axisRole::x);
    report.position.dwYpos = at(axisRole::y);
    report.position.dwZpos = at(axisRole::throttle);
    report.position.dwRpos = at(axisRole::rudder);
    constexpr std::bitset<mostButtons> recorded(0xFFFFFFFFU);
    report.position.dwButtons = static_cast<std::uint32_t>((state.buttons & recorded).to_ulong());
    report.position.dwPOV = state.hats[0];
    report.microseconds = state.microseconds;
    report.buttons = state.buttons;
    report.hats = state.hats;
    return report;
}

JOYCAPS capsOf(const JoystickDevice& device, const AxisMap& axes)
{
    JOYCAPS caps;
    caps.szPname = device.name;
    caps.wNumAxes = static_cast<std::uint32_t>(device.axes.size());
    caps.wNumButtons = static_cast<std::uint32_t>(device.buttons);
    if (axes[axisRole::throttle] >= 0) caps.wCaps |= joyCaps::hasZ;
    if (axes[axisRole::rudder] >= 0) caps.wCaps |= joyCaps::hasR;
    if (device.hats > 0) caps.wCaps |= joyCaps::hasPov;
    return caps;
}

} // namespace tarvex
