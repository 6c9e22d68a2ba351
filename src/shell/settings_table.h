#pragma once

#include "shell/settings.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

namespace tarvex {

/// The procedures that read and write settings, as bits of a set.
enum class Access : std::uint64_t {
    Nobody = 0,
    GetOptions = 1ULL << 0,
    GetWinloadStuff = 1ULL << 1,
    GetColours = 1ULL << 2,
    GetMumPosition = 1ULL << 3,
    GetSpaces = 1ULL << 4,
    PositionComposer = 1ULL << 5,
    PositionSafein = 1ULL << 6,
    GetSafeinOptions = 1ULL << 7,
    GetOpenSingleOnly = 1ULL << 8,
    GetIndentStuff = 1ULL << 9,
    GetLastImagesDirectory = 1ULL << 10,
    GetCustomApps = 1ULL << 11,
    GetGames = 1ULL << 12,
    GetFavourites = 1ULL << 13,
    GetPreviousFiles = 1ULL << 14,
    PositionInfoWindow = 1ULL << 15,
    GetPreviousLoaders = 1ULL << 16,
    GetLayoutFonts = 1ULL << 17,
    GetTcaOptions = 1ULL << 18,

    SaveOptions = 1ULL << 24,
    SaveWinLoadStuff = 1ULL << 25,
    SaveColourScheme = 1ULL << 26,
    ColoursSortOut = 1ULL << 27,
    SaveMumPosition = 1ULL << 28,
    SaveSpaces = 1ULL << 29,
    SavePosition = 1ULL << 30,
    SaveSafeinOptions = 1ULL << 31,
    SaveOpenSingleOnly = 1ULL << 32,
    SaveIndentStuff = 1ULL << 33,
    SaveLastImagesDirectory = 1ULL << 34,
    SaveApps = 1ULL << 35,
    SaveGames = 1ULL << 36,
    SaveFavourites = 1ULL << 37,
    UpdateRecentJFMenuList = 1ULL << 38,
    UpdateRecentMFMenuList = 1ULL << 39,
    SaveInfoWindowPosition = 1ULL << 40,
    SaveFilesPath = 1ULL << 41,
    SavePreviousLoaders = 1ULL << 42,
    SaveTcaOptions = 1ULL << 43,
    SaveThePersonsName = 1ULL << 44,
    SaveMacroFrameWidth = 1ULL << 45,
    cmdOK_Click = 1ULL << 46, ///< of the tip window
    mnuInsertWithColour_Click = 1ULL << 47,
    mnuAppsQuiet_Click = 1ULL << 48,
    mnuGamesDownloadFirst_Click = 1ULL << 49,
    SaveCRthang = 1ULL << 50, ///< of the window for Rem statements
};
constexpr Access operator|(Access a, Access b)
{
    return static_cast<Access>(static_cast<std::uint64_t>(a) | static_cast<std::uint64_t>(b));
}
constexpr bool contains(Access set, Access one)
{
    return (static_cast<std::uint64_t>(set) & static_cast<std::uint64_t>(one)) != 0;
}

/// How a value stands in the file; always text.
enum class SettingForm {
    Flag,        ///< 0 or 1; 16-bit in memory
    Integer,     ///< decimal, signed; 16-bit in memory
    IntegerText, ///< the same, but read as a text of at most 9 characters and converted whole
    Text,        ///< at most 99 characters survive a read
    ShortText,   ///< at most 49
    ColourText,  ///< decimal text of 0x00BBGGRR, at most 49 characters
    Position,    ///< twips, converted to a single-precision number
    Number,      ///< the same without a unit
    Dropped,     ///< read and thrown away, written empty
};

/// Directly in the program directory.
enum class IniFile { Tarvex, Lists, Layouts, Tca };
std::string_view fileNameOf(IniFile file);

using SettingMember =
    std::variant<std::monostate, std::int16_t Settings::*, Colour Settings::*, float Settings::*,
                 SettingText Settings::*, std::vector<std::int16_t> Settings::*, std::vector<SettingText> Settings::*>;
/// How many keys an indexed family has: none (a single key), a fixed number, or the value of another setting.
using SettingCount = std::variant<std::monostate, int, std::int16_t Settings::*>;

struct SettingRow {
    IniFile file;
    std::string_view section;
    std::string_view key; ///< of a family the stem; the index from 1 follows
    SettingForm form;
    std::string_view readDefault; ///< `present`: the value in memory stays
    SettingMember member;
    Access readers;
    Access writers;
    std::string_view meaning;
    std::string_view factory = {}; ///< what a new installation gets, where it differs from the default
    SettingCount count = {};
};

/// As a readDefault: the window's own value at the time.
constexpr std::string_view present = "(its own at the time)";

/// Every key of the program, in the order in which they are read and written.
std::span<const SettingRow> settingsTable();

} // namespace tarvex
