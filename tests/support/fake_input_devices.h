#pragma once

#include "platform/input_devices.h"
#include "platform/joystick_axes.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tarvex {

/// A joystick in the test's hands: with throttle and rudders, until the test says otherwise.
struct FakeJoystick final : Joystick {
    JOYCAPS caps{"TM F-22 Pro", joyCaps::hasZ | joyCaps::hasR, 4, 4};
    JOYINFOEX position;
    int capsResult = joyError::none;
    int positionResult = joyError::none;
    int users = 0;
    std::int64_t microseconds = 0;
    std::vector<JoystickDevice> plugged{deviceNamed("TM F-22 Pro", "0300f22")};
    JoystickChoice wanted;

    static JoystickDevice deviceNamed(const std::string& name, const std::string& guid)
    {
        JoystickDevice device{name, guid, {}, 4, 1};
        for (const int code : {axisCode::x, axisCode::y, axisCode::throttle, axisCode::rudder})
            device.axes.push_back({axisName(code, device.axes.size()), code, 0, 255, 0, 0});
        return device;
    }

    void start() override { ++users; }
    void stop() override { --users; }
    std::vector<JoystickDevice> devices() const override { return plugged; }
    void choose(const JoystickChoice& choice) override
    {
        wanted = choice;
        devicesChanged();
    }
    std::optional<std::size_t> chosen() const override { return indexOf(wanted, plugged); }
    int joyGetDevCapsA(JOYCAPS& result) const override
    {
        if (capsResult == joyError::none) result = caps;
        return capsResult;
    }
    int joyGetPosEx(JOYINFOEX& info) const override
    {
        if (positionResult == joyError::none) info = position;
        return positionResult;
    }

    /// The device sends a report, this long after the one before.
    void send(std::uint32_t x, std::uint32_t y, std::int64_t later = 10'000)
    {
        position.dwXpos = x;
        position.dwYpos = y;
        send(later);
    }
    void send(std::int64_t later = 10'000)
    {
        microseconds += later;
        JoystickReport report;
        report.position = position;
        report.buttons = position.dwButtons;
        report.microseconds = microseconds;
        reported(report);
    }
    void unplug()
    {
        positionResult = joyError::unplugged;
        capsResult = joyError::unplugged;
        plugged.clear();
        devicesChanged();
    }
};

/// Lock keys in the test's hands.
struct FakeKeyboard final : Keyboard {
    KeyStates states{};
    bool canBeSet = true;
    int settings = 0; ///< how often a program tried

    int GetKeyState(int keyCode) const override { return states.at(static_cast<std::size_t>(keyCode)) & 1; }
    void GetKeyboardState(KeyStates& result) const override { result = states; }
    bool SetKeyboardState(const KeyStates& wanted) override
    {
        ++settings;
        if (canBeSet) states = wanted;
        return canBeSet;
    }
};

} // namespace tarvex
