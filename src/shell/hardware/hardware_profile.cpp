#include "shell/hardware/hardware_profile.h"

#include "platform/lines.h"

#include <array>
#include <span>
#include <string_view>

namespace tarvex {

namespace {

struct Extensions {
    std::string_view joystickFile;
    std::string_view macroFile;
};
constexpr std::array<Extensions, 5> extensions{
    {{"f22", "m22"}, {"b50", "m50"}, {"adv", "mdf"}, {"adv", "mdf"}, {"adv", "mdf"}}};

constexpr std::array<std::string_view, 5> joystickNames{"F22 Pro", "F-16 FLCS", "P FCS", "Top Gun", "FCS"};
constexpr std::array<std::string_view, 4> throttleNames{", no throttle", ", TQS", ", WCS MkII", ", WCS"};
constexpr std::array<std::string_view, 3> rudderNames{", no rudders.", ", Elite rudders.", ", RCS."};

std::string_view nameAt(std::span<const std::string_view> names, std::int16_t index)
{
    const auto entry = static_cast<std::size_t>(index); // of a negative one beyond all names
    return entry < names.size() ? names[entry] : "";
}

void setExtensions(Settings& settings)
{
    const auto joystick = static_cast<std::size_t>(settings.JoyName); // of a negative one beyond all
    if (joystick >= extensions.size()) return;
    const Extensions& chosen = extensions[joystick];
    settings.JoystickExtension = chosen.joystickFile;
    settings.MacroExtension = chosen.macroFile;
}

/// The maker's own configuration file names throttle and rudders; its lines count only as they stand, whole.
void readTmCfg(const FileSystem& files, const std::string& path, Settings& settings)
{
    const std::string text = files.read(path);
    for (const std::string_view line : linesOf(text)) {
        if (line == "THROTTLETYPE=TQS") settings.ThrottleName = 1;
        if (line == "THROTTLETYPE=WCS") settings.ThrottleName = 2;
        if (line == "RUDDERTYPE=RCS") settings.RudderName = 2;
    }
}

} // namespace

std::string GetHardwareNames(const Settings& settings)
{
    std::string names{nameAt(joystickNames, settings.JoyName)};
    names += nameAt(throttleNames, settings.ThrottleName);
    names += nameAt(rudderNames, settings.RudderName);
    return names;
}

void AutoDetect(const Platform& platform, Shared& shared)
{
    const Steps step; // a folder that can't be read is as good as none
    const FileSystem& files = platform.files;
    Settings& settings = shared.settings;

    shared.store.ColoursSortOut();
    if (files.directoryExists("c:\\tm\\f22")) {
        settings.ProgramFilesPath = "c:\\tm\\f22\\f22progs";
        settings.B50LoadPath = "c:\\tm\\f22\\f22load.exe";
        settings.CandCCPath = "c:\\tm\\f22\\f22.bat";
        settings.JoyName = joystick::f22Pro;
        const std::string configuration = "c:\\tm\\f22\\Tm.cfg";
        if (files.fileExists(configuration)) step([&] { readTmCfg(files, configuration, settings); });
    } else if (files.directoryExists("c:\\tqs")) {
        settings.ProgramFilesPath = "c:\\tqs\\programs";
        settings.B50LoadPath = "c:\\tqs\\b50load.exe";
        settings.CandCCPath = "c:\\tqs\\tm.bat";
        settings.JoyName = joystick::f16Flcs;
        settings.ThrottleName = 1;
    } else if (files.directoryExists("c:\\tm")) {
        settings.CandCCPath = "c:\\tm\\tm.bat";
        settings.ThrottleName = 0;
        if (files.fileExists("c:\\tm\\b50load.exe")) {
            settings.ProgramFilesPath = "c:\\tm\\b50progs";
            settings.B50LoadPath = "c:\\tm\\b50load.exe";
            settings.JoyName = joystick::f16Flcs;
        } else {
            settings.ProgramFilesPath = "c:\\tm\\programs";
            settings.JoyName = joystick::pFcs;
        }
    } else {
        return;
    }
    setExtensions(settings);
    shared.store.SaveOptions();
}

void ComboJoystick_Click(Shared& shared, std::int16_t index)
{
    const std::int16_t before = shared.settings.JoyName;
    shared.settings.JoyName = index;
    setExtensions(shared.settings);
    if (index != before) shared.HardwareChangedMark = 1;
}

void ComboThrottle_Click(Shared& shared, std::int16_t index) { shared.settings.ThrottleName = index; }

void ComboRudders_Click(Shared& shared, std::int16_t index) { shared.settings.RudderName = index; }

} // namespace tarvex
