#include "cli/sheet_command.h"

#include "cli/input.h"
#include "documents/text/pane.h"
#include "language/associated_files.h"
#include "platform/dos_path.h"
#include "platform/errors.h"
#include "platform/posix/safe_writer.h"
#include "platform/posix/system_calls.h"
#include "platform/text.h"
#include "platform/windows1252.h"
#include "sheet/sheet_files.h"
#include "shell/settings.h"

#include <array>
#include <ctime>
#include <filesystem>

namespace tarvex::cli {

namespace {

namespace fs = std::filesystem;

/// The file of that name in any case; empty without one.
std::string findBeside(const std::string& joystickFile, const std::string& name)
{
    fs::path folder = fs::path(joystickFile).parent_path();
    if (folder.empty()) folder = ".";
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        if (lowerUtf8(entry.path().filename().string()) == lowerUtf8(name)) return entry.path().string();
    }
    return {};
}

/// The macro file that belongs to the joystick file: the one of its MDEF statement, else the one of its name.
std::string macroFileOf(const std::string& joystickFile, const std::string& text)
{
    if (joystickFile == "-") return {};
    const Settings settings;
    const std::string name = fs::path(joystickFile).filename().string();
    Pane pane;
    pane.setText(text);
    const std::string named = macroFileByMdef(pane, name, settings);
    const std::string found = named.empty() ? "" : findBeside(joystickFile, named);
    return found.empty() ? findBeside(joystickFile, associatedMacroFile(name, settings)) : found;
}

std::string today()
{
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    localtime_r(&now, &parts);
    std::array<char, 64> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%d %B %Y", &parts);
    const std::string date(text.data(), length);
    return date.starts_with('0') ? date.substr(1) : date;
}

void write(const std::string& path, const std::string& bytes)
{
    const fs::path folder = fs::path(path).parent_path();
    SystemCalls calls;
    try {
        SafeWriter((folder.empty() ? fs::path(".") : folder) / "Recover", calls).save(path, bytes);
    } catch (const RuntimeError& error) {
        throw CallError("can't write " + path + ": " + error.what());
    }
}

} // namespace

int sheetCommand(const SheetOptions& options)
{
    const auto form = sheetForm(options.output);
    if (!form) throw CallError("the sheet's name must end in .pdf, .svg or .html: " + options.output);
    const std::string text = withWindowsLineEnds(readInput(options.joystickFile));
    const std::string macroFile =
        options.macroFile.empty() ? macroFileOf(options.joystickFile, text) : options.macroFile;
    const std::string macroText = macroFile.empty() ? "" : readInput(macroFile);
    const std::string name = fs::path(displayName(options.joystickFile)).filename().string();
    const SheetFiles files{.joystickName = name,
                           .joystickText = text,
                           .macroName = macroFile.empty() ? "" : fs::path(displayName(macroFile)).filename().string(),
                           .macroText = macroText};
    const SheetSpread spread = options.onePage ? SheetSpread::OnePage : SheetSpread::MorePages;
    write(options.output,
          sheetFile(controlSheet(files, today()), *form, options.letter ? sheetLetter : sheetA4, spread));
    return exitStatus::done;
}

} // namespace tarvex::cli
