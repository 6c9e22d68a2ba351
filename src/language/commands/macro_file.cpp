#include "language/commands/macro_file.h"

#include "language/macro_file_lines.h"

namespace tarvex {

namespace {

constexpr const char* linesFile = "C:\\macro.txt";

std::string joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) (text += line) += "\r\n";
    return text;
}

} // namespace

void GetEachLineFromMacroFile(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_GetEachLineFromMacroFile");
    FileSystem& files = editor.platform.files;
    const std::string& path = editor.macro.FilePath;
    std::vector<std::string>& lines = editor.macros.MacroFileLines;
    if (!files.fileExists(path)) return;
    editor.status("Opening " + editor.macro.FileName + " file for analysis ");
    lines.clear();
    step([&] { lines = keptMacroLines(files.read(path)); });
    step([&] { files.writePrivate(linesFile, joined(lines)); });
}

} // namespace tarvex
