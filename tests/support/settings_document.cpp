#include "support/settings_document.h"

#include "shell/extras.h"
#include "shell/settings_table.h"

#include <utility>

namespace tarvex {

namespace {

constexpr std::pair<Access, std::string_view> procedures[] = {
    {Access::GetOptions, "GetOptions"},
    {Access::GetWinloadStuff, "GetWinloadStuff"},
    {Access::GetColours, "GetColours"},
    {Access::GetMumPosition, "GetMumPosition"},
    {Access::GetSpaces, "GetSpaces"},
    {Access::PositionComposer, "PositionComposer"},
    {Access::PositionSafein, "PositionSafein"},
    {Access::GetSafeinOptions, "GetSafeinOptions"},
    {Access::GetOpenSingleOnly, "GetOpenSingleOnly"},
    {Access::GetIndentStuff, "GetIndentStuff"},
    {Access::GetLastImagesDirectory, "GetLastImagesDirectory"},
    {Access::GetCustomApps, "GetCustomApps"},
    {Access::GetGames, "GetGames"},
    {Access::GetFavourites, "GetFavourites"},
    {Access::GetPreviousFiles, "GetPreviousFiles"},
    {Access::PositionInfoWindow, "PositionInfoWindow"},
    {Access::GetPreviousLoaders, "GetPreviousLoaders"},
    {Access::GetLayoutFonts, "Form_Load"},
    {Access::GetTcaOptions, "GetTcaOptions"},
    {Access::SaveOptions, "SaveOptions"},
    {Access::SaveWinLoadStuff, "SaveWinLoadStuff"},
    {Access::SaveColourScheme, "SaveColourScheme"},
    {Access::ColoursSortOut, "ColoursSortOut"},
    {Access::SaveMumPosition, "SaveMumPosition"},
    {Access::SaveSpaces, "SaveSpaces"},
    {Access::SavePosition, "SavePosition"},
    {Access::SaveSafeinOptions, "SaveSafeinOptions"},
    {Access::SaveOpenSingleOnly, "SaveOpenSingleOnly"},
    {Access::SaveIndentStuff, "SaveIndentStuff"},
    {Access::SaveLastImagesDirectory, "SaveLastImagesDirectory"},
    {Access::SaveApps, "SaveApps"},
    {Access::SaveGames, "SaveGames"},
    {Access::SaveFavourites, "SaveFavourites"},
    {Access::UpdateRecentJFMenuList, "UpdateRecentJFMenuList"},
    {Access::UpdateRecentMFMenuList, "UpdateRecentMFMenuList"},
    {Access::SaveInfoWindowPosition, "SaveInfoWindowPosition"},
    {Access::SaveFilesPath, "SaveFilesPath"},
    {Access::SavePreviousLoaders, "SavePreviousLoaders"},
    {Access::SaveTcaOptions, "SaveTcaOptions"},
    {Access::SaveThePersonsName, "SaveThePersonsName"},
    {Access::SaveMacroFrameWidth, "FrameMacros_MouseMove"},
    {Access::cmdOK_Click, "cmdOK_Click"},
    {Access::mnuInsertWithColour_Click, "mnuInsertWithColour_Click"},
    {Access::mnuAppsQuiet_Click, "mnuAppsQuiet_Click"},
    {Access::mnuGamesDownloadFirst_Click, "mnuGamesDownloadFirst_Click"},
    {Access::SaveCRthang, "SaveCRthang"},
};

std::string names(Access set)
{
    std::string text;
    for (const auto& [procedure, name] : procedures) {
        if (contains(set, procedure)) text += (text.empty() ? "`" : ", `") + std::string(name) + "`";
    }
    return text.empty() ? "nobody" : text;
}

std::string_view nameOf(SettingForm form)
{
    switch (form) {
    case SettingForm::Flag:
        return "flag";
    case SettingForm::Integer:
    case SettingForm::IntegerText:
        return "int";
    case SettingForm::Text:
        return "text, 99";
    case SettingForm::ShortText:
        return "text, 49";
    case SettingForm::ColourText:
        return "colour";
    case SettingForm::Position:
        return "twips";
    case SettingForm::Number:
        return "number";
    case SettingForm::Dropped:
        break;
    }
    return "none";
}

std::string quoted(std::string_view value) { return value.empty() ? "" : "`" + std::string(value) + "`"; }

std::string rowOf(const SettingRow& row)
{
    const bool family = !std::holds_alternative<std::monostate>(row.count);
    const std::string standard = row.readDefault == present ? std::string(present) : quoted(row.readDefault);
    const std::string factory = row.factory.empty() ? "" : ", new: " + quoted(row.factory);
    return "| `" + std::string(row.key) + "`" + (family ? "1, 2, ..." : "") + " | " + std::string(nameOf(row.form)) +
           " | " + standard + factory + " | " + names(row.readers) + " | " + names(row.writers) + " | " +
           std::string(row.meaning) + " |\n";
}

constexpr std::string_view introduction =
    "# Settings\n\n"
    "Every key that Tarvex keeps in its INI files, in the order in which they are read and written. This page is made "
    "from the table in `src/shell/settings_table.cpp`; a test compares the two and, with `TARVEX_UPDATE_DOCS=1` in the "
    "environment, writes the page anew.\n\n"
    "Forms: *flag* 0 or 1; *int* a decimal 16-bit number; *text, n* at most n characters survive a read, while the "
    "file keeps the whole text, and a path of which only the whole one leads anywhere is taken whole; *colour* the "
    "decimal number 0x00BBGGRR, so 255 is red; *twips* 1/1440 inch; *number* may have a "
    "fraction. *new* is what a new installation gets.\n";

constexpr std::string_view ofThisMachine =
    "\n## `Platform.ini`\n\n"
    "What belongs to this machine, and choices beyond those above; the page \"Extras\" of the preferences and the View "
    "menu set it. Paths are those of this system, from \"/\" on.\n\n"
    "| Section | Key | Default | Meaning |\n|---|---|---|---|\n"
    "| `Appearance` | `Theme` | as the desktop | `light`, `dark` or `contrast` |\n"
    "| `Programs` | `Wine`, `DOSBox` | the one in `PATH` | what runs Windows and DOS programs |\n"
    "| `Drives` | `c`, `d`, ... | as found | folder of a drive |\n"
    "| `Extras` | `TemplatesCopied` |  | `1`: the program's templates have been copied into `Templates\\`; without it "
    "they "
    "are at the next start, beside files of the same names |\n"
    "| `Extras` | `FilesCopied` |  | `1`: help texts, tips, addresses, picture and sounds have been copied into the "
    "program directory; without it they are at the next start, beside files of the same names |\n"
    "| `Handbook` | `Left`, `Top`, `Width`, `Height` |  | place of the handbook's window, twips |\n"
    "| `Handbook` | `Page` |  | the page that it showed last |\n"
    "| `Extras` | `Zoom` | `100` | size of the text in both files, per cent |\n";

std::string extrasRows()
{
    std::string rows;
    for (const ExtraTick& tick : extraTicks()) {
        std::string caption = tick.caption;
        std::erase(caption, '&');
        rows += "| `Extras` | `" + std::string(tick.key) + "` | `" + (tick.standard ? "1" : "0") + "` | " + caption +
                " |\n";
    }
    return rows;
}

} // namespace

std::string settingsDocument()
{
    std::string text{introduction};
    std::string heading;
    for (const SettingRow& row : settingsTable()) {
        const std::string here =
            "`" + std::string(fileNameOf(row.file)) + "`, section `" + std::string(row.section) + "`";
        if (here != heading)
            text += "\n## " + here +
                    "\n\n| Key | Form | Default | Read by | Written by | Meaning |\n|---|---|---|---|---|---|\n";
        heading = here;
        text += rowOf(row);
    }
    return text + std::string(ofThisMachine) + extrasRows();
}

} // namespace tarvex
