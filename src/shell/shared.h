#pragma once

#include "platform/machine_settings.h"
#include "platform/platform.h"
#include "shell/current_directory.h"
#include "shell/errors.h"
#include "shell/extras.h"
#include "shell/settings.h"
#include "shell/settings_store.h"

#include <cstdint>
#include <string>

namespace tarvex {

/// Process-wide values: one struct, passed in, so that many programs can live in one process.
struct Shared {
    explicit Shared(Platform& platform)
        : store(platform.files, platform.programDirectory, settings, errors),
          platformIni(platform.files, platformIniPath(platform.programDirectory)), extras(platformIni),
          currentDirectory(platform.files, platform.programDirectory)
    {
    }
    Shared(const Shared&) = delete;
    Shared& operator=(const Shared&) = delete;

    Settings settings;
    ErrorRecord errors;
    SettingsStore store;     ///< moves `settings` to and from the INI files
    ProfileFile platformIni; ///< what belongs to this machine
    Extras extras;
    CurrentDirectory currentDirectory;

    std::string IniFilePath;                ///< of Tarvex.ini
    std::string BackupDirectory;            ///< with "\" at the end
    std::string RtfDirectory;               ///< with "\" at the end
    std::string CommandLineFile;            ///< one path or nothing; no quotes are removed
    std::int16_t StartupSoundAvailable = 0; ///< 1: a start-up sound file exists
    std::int16_t IsLoading = 0;             ///< 1: the program itself changes pane text; no user edit
    std::int16_t HardwareChangedMark = 0;   ///< 1: another joystick was chosen in the preferences
    std::int16_t PreferencesPage = 0;       ///< the page at which the preferences are to open, from 0
    std::int16_t FontChanged = 0;           ///< 1: the pane font was changed in the preferences
    std::int16_t FindWindowOpen = 0;        ///< 1: the find and replace window is loaded
    Colour DefaultTextColour = 0;           ///< of plain inserted text
    std::string HeadingText;                ///< what the boxes for headings and Rem statements return; UTF-8

    /// Remembered places of tool windows, twips; -1: not remembered.
    float ToolWindowTop = -1;
    float ToolWindowLeft = -1;
    float SecondToolWindowTop = -1;
    float SecondToolWindowLeft = -1;
};

} // namespace tarvex
