#include "language/macro_file_lines.h"

#include "platform/lines.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr const char* linesFile = "C:\\macro.txt";
constexpr std::string_view bareRem = "rem";

bool saysNothing(std::string_view line)
{
    if (line.empty() || line == "~" || line == "//") return true;
    if (line.front() == '~' && line.find('=') != line.npos) return true;
    return line.size() == bareRem.size() && lowerWindows1252(line) == bareRem;
}

std::string joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) (text += line) += "\r\n";
    return text;
}

} // namespace

std::vector<std::string> keptMacroLines(std::string_view file)
{
    std::vector<std::string> kept;
    for (std::string_view line : linesOf(file)) {
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        if (!saysNothing(line)) kept.emplace_back(line);
    }
    return kept;
}

void GetEachLineFromMacroFile(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_GetEachLineFromMacroFile");
    FileSystem& files = editor.platform.files;
    const std::string& path = editor.pair.MacroFilePath;
    std::vector<std::string>& lines = editor.macros.MacroFileLines;
    if (!files.fileExists(path)) return;
    editor.status("Opening " + editor.pair.MacroFileName + " file for analysis ");
    lines.clear();
    step([&] { lines = keptMacroLines(files.read(path)); });
    step([&] { files.write(linesFile, joined(lines)); });
}

} // namespace tarvex
