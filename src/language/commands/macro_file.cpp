#include "language/commands/macro_file.h"

#include "language/macro_file_lines.h"
#include "platform/utf16.h"

namespace tarvex {

namespace {

constexpr const char* linesFile = "C:\\macro.txt";

std::string joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) (text += line) += "\r\n";
    return text;
}

bool holds(const FileSystem& files, const std::string& path, const std::string& text)
{
    if (!files.fileExists(path) || files.isReadOnly(path) || files.stamp(path).size != text.size()) return false;
    bool isSame = false;
    const Steps step; // a file that can't be read may still be replaced
    step([&] { isSame = files.read(path) == text; });
    return isSame;
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
    step([&] { lines = keptMacroLines(textOfFile(files.read(path))); });
    const std::string text = joined(lines);
    // A write is synced twice, which takes a sixth of the program's start; the file mostly has these lines already.
    if (holds(files, linesFile, text)) return;
    step([&] { files.writePrivate(linesFile, text); });
}

} // namespace tarvex
