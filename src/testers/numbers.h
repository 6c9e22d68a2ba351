#pragma once

#include "documents/pair/editor.h"
#include "platform/joystick.h"
#include "platform/toggle_label.h"
#include "testers/stick_statistics.h"

#include <array>
#include <functional>
#include <string>

namespace tarvex {

/// The panel with the numbers of an analyser, which can be folded away: what was measured, what that means, and which
/// device and axes are looked at. Whether it is open, device and axes are kept in Platform.ini.
struct Numbers {
    static constexpr std::array<const char*, 9> columns = {"Now",        "Lowest", "Highest", "Range", "At rest",
                                                           "Off centre", "Noise",  "Spikes",  "Drift"};
    static constexpr std::array<const char*, axisRole::count> rows = {"X", "Y", "Throttle", "Rudder"};

    Numbers(Editor& theEditor, Joystick& theJoystick);
    Numbers(const Numbers&) = delete;
    Numbers& operator=(const Numbers&) = delete;

    Editor& editor;
    Joystick& joystick;

    MenuItem mnuNumbers{"mnuNumbers", "Show &numbers"};
    Property<bool> Visible = false;
    std::array<std::array<Label, columns.size()>, rows.size()> Cells;
    Label Rate;
    Label Kernel; ///< what the kernel does to the values on their way
    Label Verdict;
    Button SavePicture;
    Button SaveSamples;
    Button CopySummary;
    Button StartAgain;
    ComboBox Device;
    std::array<ComboBox, axisRole::count> Axis;

    std::function<std::string()> picture; ///< the bytes of a PNG file with the field; set by the view

    StickStatistics statistics;

    /// Device and axes as Platform.ini has them.
    JoystickChoice choice() const;
    void choose(const JoystickChoice& choice);

    /// A window was opened: nothing is measured yet.
    void restart();
    void add(const JoystickReport& report) { statistics.add(report); }
    void refresh();
    /// Those that are there now, and the axes of the open one.
    void showDevices();
    /// The same, if the last time was a quarter of a second of reports ago.
    void refreshSometimes();
    /// All that the panel shows, as lines of text.
    std::string summary();

    std::vector<Connection> connections;

private:
    void unfold(bool visible);
    void showAll();
    void showCells();
    void saveFile(const char* title, const char* filter, const char* extension,
                  const std::function<std::string()>& contents);

    std::int64_t m_refreshed = 0; ///< time of the newest report that is shown
};

/// The reports as lines of comma-separated values, with a heading; times in microseconds from the first one.
std::string samplesText(const StickStatistics& statistics);

/// What the numbers say about the stick, in words.
std::string verdictOf(StickStatistics& statistics, bool hasThrottle, bool hasRudder);

} // namespace tarvex
