#pragma once

#include <linux/input.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace tarvex {

/// A stick with throttle and rudder of our own description, as the kernel shows it: a device file that answers the
/// kernel's requests. Needs umockdev's wrapper around the process; a program that is started from it sees the file,
/// too. What umockdev refuses is thrown as std::runtime_error.
class MockStick {
public:
    static constexpr const char* file = "/dev/input/event7";
    struct Axis {
        unsigned code;
        int minimum;
        int maximum;
        int flat;
        int fuzz;
        int value;
    };
    std::string name = "Home-made stick";
    std::vector<Axis> axes{{ABS_X, 0, 255, 15, 0, 128},         {ABS_Y, 0, 255, 15, 0, 128},
                           {ABS_THROTTLE, 0, 1023, 0, 7, 1023}, {ABS_RUDDER, -512, 511, 0, 0, 0},
                           {ABS_HAT0X, -1, 1, 0, 0, 0},         {ABS_HAT0Y, -1, 1, 0, 0, 0}};
    std::vector<unsigned> buttons{BTN_TRIGGER, BTN_THUMB, BTN_THUMB2, BTN_TOP, BTN_TOP2};
    int writes = 0; ///< requests that would change the device

    MockStick();
    ~MockStick();
    MockStick(const MockStick&) = delete;
    MockStick& operator=(const MockStick&) = delete;

    void plug();
    void unplug();
    /// One report: values by code, and the end of the report.
    struct Change {
        unsigned type;
        unsigned code;
        int value;
    };
    void send(const std::vector<Change>& changes, std::int64_t microseconds);

private:
    struct World;
    std::string contents(unsigned number, std::size_t size) const;
    void describe();

    std::unique_ptr<World> m_world;
    std::string m_pipe;              ///< what stands for the device file
    int m_port = -1;                 ///< its writing end
    std::atomic<bool> m_gone = true; ///< as the kernel reports it; read by umockdev's thread
};

} // namespace tarvex
