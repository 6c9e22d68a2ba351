// Runs a program that sees a joystick which lines of text move:
//   umockdev-wrapper with_stick LINES PROGRAM [ARGUMENT...]
// LINES is a named pipe. The joystick is there from the start. Axes go from 0 to 4095, buttons count from 1; lines are
//   move X Y THROTTLE RUDDER    one report
//   button NUMBER 0|1           one report
//   spike X                     a report with another X, and one with the old one
//   rest RATE SECONDS           so many reports a second in the middle, with a little noise
//   tour RATE SECONDS           the same on the way around the whole field
//   break RATE SECONDS          such a tour, and the stick is unplugged at once
//   count FILE                  writes the number of reports so far
//   unplug
//   plug
// The program takes this process's place; a child moves the joystick for as long as the program lives.

#include "mock_stick.h"

#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <fstream>
#include <numbers>
#include <random>
#include <sstream>

#include <sys/prctl.h>
#include <unistd.h>

namespace tarvex {
namespace {

constexpr int axisEnd = 4095;
constexpr int middle = 2048;
constexpr std::int64_t nanosecond = 1'000'000'000;

volatile std::sig_atomic_t ended = 0;

std::int64_t now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * nanosecond + time.tv_nsec;
}

void waitUntil(std::int64_t moment)
{
    const timespec time{moment / nanosecond, moment % nanosecond};
    clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &time, nullptr);
}

class Hand {
public:
    Hand()
    {
        m_stick.name = "Home-made stick with throttle";
        m_stick.axes = {{ABS_X, 0, axisEnd, 15, 0, middle},
                        {ABS_Y, 0, axisEnd, 15, 0, middle},
                        {ABS_THROTTLE, 0, axisEnd, 0, 7, axisEnd},
                        {ABS_RUDDER, 0, axisEnd, 0, 0, middle},
                        {ABS_HAT0X, -1, 1, 0, 0, 0},
                        {ABS_HAT0Y, -1, 1, 0, 0, 0}};
        m_stick.plug();
    }

    void follow(const std::string& line)
    {
        std::istringstream words(line);
        std::string order;
        words >> order;
        if (order == "move") {
            int x = middle;
            int y = middle;
            int throttle = axisEnd;
            int rudder = middle;
            words >> x >> y >> throttle >> rudder;
            move(x, y, throttle, rudder);
        } else if (order == "button") {
            unsigned number = 1;
            int down = 0;
            words >> number >> down;
            send({{EV_KEY, m_stick.buttons.at(number - 1), down}});
        } else if (order == "spike") {
            int x = 0;
            words >> x;
            send({{EV_ABS, ABS_X, x}});
            send({{EV_ABS, ABS_X, middle}});
        } else if (order == "rest" || order == "tour" || order == "break") {
            double rate = 1;
            double seconds = 1;
            words >> rate >> seconds;
            repeat(rate, seconds, order == "rest");
            if (order == "break") m_stick.unplug();
        } else if (order == "count") {
            std::string file;
            words >> file;
            std::ofstream(file + ".part") << m_sent << "\n";
            std::rename((file + ".part").c_str(), file.c_str()); // a reader finds the number or nothing
        } else if (order == "plug") {
            m_stick.plug();
        } else if (order == "unplug") {
            m_stick.unplug();
        }
    }

private:
    void send(const std::vector<MockStick::Change>& changes)
    {
        m_stick.send(changes, now() / 1000);
        ++m_sent;
    }
    void move(int x, int y, int throttle, int rudder)
    {
        send({{EV_ABS, ABS_X, x}, {EV_ABS, ABS_Y, y}, {EV_ABS, ABS_THROTTLE, throttle}, {EV_ABS, ABS_RUDDER, rudder}});
    }
    void repeat(double rate, double seconds, bool rests)
    {
        constexpr double noise = 1.5;
        std::normal_distribution<double> tremble(0, noise);
        const std::int64_t start = now();
        const auto count = static_cast<std::int64_t>(rate * seconds);
        for (std::int64_t i = 0; i < count && ended == 0; ++i) {
            waitUntil(start + static_cast<std::int64_t>(static_cast<double>(i * nanosecond) / rate));
            if (rests) {
                const auto around = [&] { return middle + static_cast<int>(std::lround(tremble(m_chance))); };
                send({{EV_ABS, ABS_X, around()}, {EV_ABS, ABS_Y, around()}});
            } else {
                const double at = static_cast<double>(i) / rate;
                move(wave(at, 0.31), wave(at, 0.43), wave(at, 0.11), wave(at, 0.17));
            }
        }
    }
    static int wave(double seconds, double perSecond)
    {
        constexpr double reach = 0.9;
        return middle + static_cast<int>(reach * middle * std::sin(2 * std::numbers::pi * perSecond * seconds));
    }

    MockStick m_stick;
    std::mt19937 m_chance; // the same noise each time
    std::int64_t m_sent = 0;
};

/// Serves the device until the program ends. Its folder is announced once it is there.
int serve(const char* lines, int announcement, pid_t program)
{
    struct sigaction stop = {};
    stop.sa_handler = [](int) { ended = 1; };
    sigaction(SIGTERM, &stop, nullptr);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != program) return 0;
    Hand hand;
    const std::string folder = std::getenv("UMOCKDEV_DIR");
    if (write(announcement, folder.data(), folder.size()) < 0) return 1;
    close(announcement);
    std::FILE* pipe = std::fopen(lines, "r+"); // open for writing, too, so that it has no end
    char* line = nullptr;
    std::size_t size = 0;
    while (ended == 0 && pipe != nullptr && getline(&line, &size, pipe) > 0) hand.follow(line);
    std::free(line);
    if (pipe != nullptr) std::fclose(pipe);
    return 0;
}

int run(int count, char** arguments)
{
    int announcement[2];
    if (count < 3 || pipe(announcement) != 0) return 2;
    const pid_t self = getpid();
    const pid_t child = fork();
    if (child < 0) return 2;
    if (child == 0) {
        close(announcement[0]);
        return serve(arguments[1], announcement[1], self);
    }
    close(announcement[1]);
    char folder[4096] = {};
    if (read(announcement[0], folder, sizeof folder - 1) <= 0) return 2;
    close(announcement[0]);
    setenv("UMOCKDEV_DIR", folder, 1);
    // SDL lists the device files by a call that umockdev doesn't redirect. Of this one it hears by name.
    setenv("SDL_JOYSTICK_DEVICE", MockStick::file, 1);
    execv(arguments[2], arguments + 2);
    return 127;
}

} // namespace
} // namespace tarvex

int main(int count, char** arguments)
{
    try {
        return tarvex::run(count, arguments);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "with_stick: %s\n", error.what());
        return 1;
    }
}
