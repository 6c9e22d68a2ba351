// Measures how soon a program shows its first window, and what it costs in memory.
//
//   window_start --heading
//   window_start [--runs N] [--name NAME] COMMAND [ARGUMENT...]
//
// Prints one row of medians over N starts (default 9); a start before them, which warms the caches, doesn't count.
// The window is the first one mapped that is at least 200 by 100 pixels. Memory is that of all processes of the
// command's session, read once the window has been at rest for 400 ms. Runs without a window manager: windows must
// stand directly on the root window. Exit status 1 when a start shows no window within 20 s, 2 on wrong use.

#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr Milliseconds timeUntilRest(400);
constexpr Milliseconds timeLimit(20000);
constexpr int smallestWidth = 200;
constexpr int smallestHeight = 100;

/// What one start came to. Times count from the start of the process.
struct Start {
    Milliseconds mapped{};
    Milliseconds painted{};
    Milliseconds lastPainted{};
    double pss = 0; ///< MB, shared pages divided among their users
    double own = 0; ///< MB, pages that nobody shares
    double processes = 0;
};

// ---- processes ------------------------------------------------------------------------------------------------------

/// The session that a process belongs to; none when it has gone.
std::optional<pid_t> sessionOf(pid_t process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::size_t nameEnd = text.rfind(')'); // the name may hold anything
    if (nameEnd == std::string::npos) return std::nullopt;
    std::istringstream fields(text.substr(nameEnd + 1));
    char state = 0;
    pid_t parent = 0, group = 0, session = 0;
    if (!(fields >> state >> parent >> group >> session)) return std::nullopt;
    return session;
}

std::vector<pid_t> processesOfSession(pid_t session)
{
    std::vector<pid_t> processes;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename().string();
        pid_t process = 0;
        const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), process);
        if (error != std::errc() || end != name.data() + name.size()) continue;
        if (sessionOf(process) == session) processes.push_back(process);
    }
    return processes;
}

void addMemory(pid_t process, Start& start)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string line; std::getline(file, line);) {
        std::istringstream fields(line);
        std::string name;
        double kilobytes = 0;
        if (!(fields >> name >> kilobytes)) continue;
        if (name == "Pss:") start.pss += kilobytes / 1024;
        if (name == "Private_Clean:" || name == "Private_Dirty:") start.own += kilobytes / 1024;
    }
}

/// A command in a session of its own; ended when this goes out of scope.
class Command {
public:
    explicit Command(char** arguments) : m_process(fork())
    {
        if (m_process < 0) throw std::runtime_error("no new process");
        if (m_process > 0) return;
        setsid();
        const int nowhere = open("/dev/null", O_RDWR);
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        execvp(arguments[0], arguments);
        _exit(127);
    }
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    ~Command()
    {
        end(SIGTERM);
        if (!gone(std::chrono::seconds(3))) end(SIGKILL);
        gone(std::chrono::seconds(3));
        waitpid(m_process, nullptr, 0);
    }
    std::vector<pid_t> processes() const { return processesOfSession(m_process); }

private:
    void end(int signal) const
    {
        for (const pid_t process : processes()) kill(process, signal);
    }
    bool gone(Clock::duration limit) const
    {
        for (const Clock::time_point last = Clock::now() + limit; Clock::now() < last;) {
            waitpid(m_process, nullptr, WNOHANG);
            if (processes().empty()) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return false;
    }
    pid_t m_process;
};

// ---- windows --------------------------------------------------------------------------------------------------------

/// Sees the windows that come up on the display, and what is painted in them.
class Screen {
public:
    Screen() : m_display(XOpenDisplay(nullptr))
    {
        if (!m_display) throw std::runtime_error("no display");
        // A window may be gone by the time it is asked about.
        XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
        int errorBase = 0;
        if (!XDamageQueryExtension(m_display, &m_damageBase, &errorBase)) throw std::runtime_error("no damage reports");
        XSelectInput(m_display, DefaultRootWindow(m_display), SubstructureNotifyMask);
        XSync(m_display, True); // what came up earlier doesn't count
    }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    ~Screen() { XCloseDisplay(m_display); }

    /// Waits a little for events and enters what they report in `start`. Times count from `begin`.
    void watch(Clock::time_point begin, Start& start)
    {
        pollfd ready{ConnectionNumber(m_display), POLLIN, 0};
        if (!XPending(m_display)) poll(&ready, 1, 20);
        while (XPending(m_display)) {
            XEvent event;
            XNextEvent(m_display, &event);
            take(event, Clock::now() - begin, start);
        }
    }

private:
    void take(const XEvent& event, Milliseconds time, Start& start)
    {
        if (event.type == CreateNotify && !event.xcreatewindow.override_redirect) {
            // Watched before it is mapped, so that the first paint can't be missed.
            XDamageCreate(m_display, event.xcreatewindow.window, XDamageReportRawRectangles);
            XFlush(m_display);
        } else if (event.type == MapNotify && !event.xmap.override_redirect) {
            XWindowAttributes look;
            if (!XGetWindowAttributes(m_display, event.xmap.window, &look)) return;
            if (look.width < smallestWidth || look.height < smallestHeight) return;
            if (m_windows.empty()) start.mapped = time;
            m_windows.insert(event.xmap.window);
        } else if (event.type == m_damageBase + XDamageNotify) {
            const auto& damage = reinterpret_cast<const XDamageNotifyEvent&>(event);
            if (!m_windows.contains(damage.drawable)) return;
            if (start.painted == Milliseconds::zero()) start.painted = time;
            start.lastPainted = time;
        }
    }

    Display* m_display;
    int m_damageBase = 0;
    std::set<Window> m_windows; ///< those large enough
};

// ---- measuring ------------------------------------------------------------------------------------------------------

/// Starts the command once. Throws when no window was painted in time.
Start measure(char** arguments)
{
    Screen screen;
    Start start;
    const Clock::time_point begin = Clock::now();
    const Command command(arguments);
    const auto resting = [&] { return Clock::now() - begin - start.lastPainted > timeUntilRest; };
    while (start.painted == Milliseconds::zero() || !resting()) {
        if (Clock::now() - begin > timeLimit) break; // painting without end is not a failure
        screen.watch(begin, start);
    }
    if (start.painted == Milliseconds::zero()) throw std::runtime_error("showed no window");
    const std::vector<pid_t> processes = command.processes();
    for (const pid_t process : processes) addMemory(process, start);
    start.processes = static_cast<double>(processes.size());
    return start;
}

template <typename Value> double median(const std::vector<Start>& starts, Value value)
{
    std::vector<double> values;
    for (const Start& start : starts) values.push_back(value(start));
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

/// A figure for the table; "-" for memory that the system doesn't let us read.
std::string megabytes(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", value);
    return value > 0 ? text : "-";
}

void printRow(const std::string& name, const std::vector<Start>& starts)
{
    const auto of = [&](auto value) { return median(starts, value); };
    std::printf("%-20s %10.0f %11.0f %10.0f %10s %10s %10.0f\n", name.c_str(),
                of([](const Start& start) { return start.mapped.count(); }),
                of([](const Start& start) { return start.painted.count(); }),
                of([](const Start& start) { return start.lastPainted.count(); }),
                megabytes(of([](const Start& start) { return start.pss; })).c_str(),
                megabytes(of([](const Start& start) { return start.own; })).c_str(),
                of([](const Start& start) { return start.processes; }));
}

int usage()
{
    std::fputs("use: window_start --heading | [--runs N] [--name NAME] COMMAND [ARGUMENT...]\n", stderr);
    return 2;
}

} // namespace

int main(int count, char** arguments)
{
    int runs = 9;
    std::string name;
    int next = 1;
    if (count == 2 && std::string_view(arguments[1]) == "--heading") {
        std::printf("%-20s %10s %11s %10s %10s %10s %10s\n", "", "mapped ms", "painted ms", "at rest ms", "PSS MB",
                    "own MB", "processes");
        return 0;
    }
    for (; next + 1 < count; next += 2) {
        const std::string_view option = arguments[next];
        if (option == "--runs") {
            runs = std::atoi(arguments[next + 1]);
        } else if (option == "--name") {
            name = arguments[next + 1];
        } else {
            break;
        }
    }
    if (next >= count || runs < 1) return usage();
    if (name.empty()) name = std::filesystem::path(arguments[next]).filename().string();
    try {
        measure(arguments + next);
        std::vector<Start> starts;
        for (int run = 0; run < runs; ++run) starts.push_back(measure(arguments + next));
        printRow(name, starts);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", name.c_str(), error.what());
        return 1;
    }
    return 0;
}
