#pragma once

#include "platform/controls.h"
#include "shell/setting_text.h"

#include <cstdint>
#include <vector>

namespace tarvex {

/// The persistent state of the program, a member per key and of its name; what a key means stands in the table of
/// settings_table.h. Flags are 16-bit numbers and are always tested against 1. The initial values are those before
/// anything was read.
struct Settings {
    // Tarvex.ini, FileLocations
    SettingText B50LoadPath;
    SettingText ProgramFilesPath;
    SettingText CTFJPath;
    SettingText GamesCaption;
    SettingText JoystickExtension;
    SettingText MacroExtension;
    std::int16_t JoyName = 0;
    std::int16_t ThrottleName = 0;
    std::int16_t RudderName = 0;
    std::int16_t ShowTips = 0;
    std::int16_t FirstTimeUsed = 0;
    std::int16_t AlwaysShowCompileDownload = 0;
    SettingText CandCCPath;

    // WinLoad
    SettingText WinLoadString;
    std::int16_t WinLoadUse = 0;
    std::int16_t WinLoadStatusBarErrors = 0;
    SettingText WinLoadExtra;
    std::int16_t WinLoadThr = 0;
    std::int16_t WinLoadMouse = 0;
    std::int16_t WinLoadMouseType = 0;
    std::int16_t WinLoadBlanker = 0;

    // Miscellaneous
    std::int16_t PlayWavOnStartup = 0;
    std::int16_t AutoSaveEnabled = 0;
    std::int16_t AutoSaveTime = 0;
    std::int16_t CreateBackup = 0;
    std::int16_t DisableCalibrateMenu = 0;
    std::int16_t UseTCA = 0;
    std::int16_t MinimiseAll = 0;
    std::int16_t GradientEffect = 0;
    std::int16_t FlatToolbar = 0;
    std::int16_t CanWrapToolbar = 0;
    std::int16_t HideSeparators = 0;
    std::int16_t UseExtraButtons = 0;
    std::int16_t ButtonsOnStatusBar = 0;
    std::int16_t OKtoShowToolTips = 0;
    std::int16_t OpenBothOnToolbar = 0;
    std::int16_t SaveBothOnToolbar = 0;
    std::int16_t AddCRtoREM = 0;
    std::int16_t UseQonDownload = 0;
    std::int16_t CompOnTop = 0;
    std::int16_t AllowAggressiveFocus = 0;
    std::int16_t CompTabsAddCr = 0;
    std::int16_t MacroFrameWidth = 0;
    std::int16_t HighlightLineOnUndo = 0;
    std::int16_t HighlightDefinitions = 0;
    std::int16_t CheckIdentifyOK = 0;
    std::int16_t DefaultDLYvalue = 0;
    std::int16_t ComposerImages = 0;
    std::int16_t UndoMax = 0;
    std::int16_t UndoClearOnSave = 0;
    SettingText ValidUser;

    float MumTopAtStartup = 0;
    float MumLeftAtStartup = 0;
    float MumWidthAtStartup = 0;
    float MumHeightAtStartup = 0;
    std::int16_t MumWindowstate = 0;

    std::int16_t NumberOfBlanks = 0;
    std::int16_t DefaultRPTvalue = 0;
    std::int16_t AlwaysInsert = 0;
    std::int16_t COMPaddCR = 0;
    std::int16_t COMPreturnFocus = 0;
    std::int16_t COMPMacrosTickedCopy = 0;
    float ComposerTop = 0;
    float ComposerLeft = 0;
    float SafeinTop = 0;
    float SafeinLeft = 0;
    std::int16_t AddSafeinCR = 0;
    std::int16_t AddRawBrackets = 0;
    std::int16_t UseShfKey = 0;
    std::int16_t SafeinOnTop = 0;
    std::int16_t SafeinViewModifiers = 0;
    std::int16_t ApplyRAWTMnotes = 0;
    std::int16_t OpenSingleFileOnly = 0;
    std::int16_t WakeUpWarning = 0;
    std::int16_t IndentSpaces = 0;
    std::int16_t IndentAsWell = 0;
    std::int16_t MacroSaveUpdateMacros = 0;
    std::int16_t MacroSaveIdentifyJF = 0;
    SettingText ImagesDirectory;

    // Colours
    Colour BackgroundColour = 0xFFFFFF;
    Colour BTNColour = 0;
    Colour SlashColour = 0;
    Colour RAWColour = 0;
    Colour MiscellaneousColour = 0;
    Colour MacroBackgroundColour = 0xFFFFFF;
    Colour RemStatements = 0;
    SettingText TextFontName;
    std::int16_t TextFontSize = 0;
    std::int16_t TextFontBold = 0;
    std::int16_t ApplyColoursOnFileOpen = 0;
    std::int16_t InsertWithColour = 0;

    // Apps; the three lists have four entries each
    SettingText ImageFilePath;
    SettingText TextFilePath;
    std::vector<SettingText> CustomAppName;
    std::vector<SettingText> CustomAppPath;
    std::vector<std::int16_t> CustomAppUse;

    // Games
    std::int16_t GameArrayNum = 0;
    std::int16_t GameDownloadOption = 0;
    std::vector<SettingText> GameName;
    std::vector<SettingText> GamePath;
    std::vector<SettingText> GameDIRPath;
    std::vector<SettingText> GameJF;

    // Favourites
    std::int16_t FavArrayNum = 0;
    std::int16_t FavLoadOnStart = 0;
    SettingText FavNameToLoad;
    std::vector<SettingText> FavName;
    std::vector<SettingText> FavJFPath;
    std::vector<SettingText> FavMFPath;

    // PreviousJoystickFiles, PreviousMacroFiles
    std::int16_t JFArrayNum = 0;
    std::vector<SettingText> JFPath;
    std::int16_t MFArrayNum = 0;
    std::vector<SettingText> MFPath;

    // Online Help
    float InfoWindowTop = 0;
    float InfoWindowLeft = 0;
    float InfoWindowHeight = 0;
    float InfoWindowWidth = 0;

    // Launcher
    SettingText FilesDirectory;

    // Lists.ini, Loaders
    std::int16_t NumPreviousLoaders = 0;
    std::vector<SettingText> Loader;

    // Layouts.ini, Joystick Layout
    SettingText LOTextFont;
    std::int16_t LOTextFontSize = 0;
    std::int16_t LOTextFontBold = 0;

    // TCA.ini, Options
    float TCACentreSensitivity = 0;
    std::int16_t TCAGridCellSize = 0;
};

} // namespace tarvex
