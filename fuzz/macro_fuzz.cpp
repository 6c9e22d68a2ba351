#include "language/macro_analysis.h"
#include "language/macro_file_lines.h"
#include "language/macros_used.h"
#include "language/slash_columns.h"
#include "language/statements.h"
#include "platform/lines.h"
#include "platform/windows1252.h"

#include <cstdint>
#include <cstdlib>

namespace {

using namespace tarvex;

void require(bool holds)
{
    if (!holds) std::abort();
}

/// The lists hold the macros of the lines, and each of them under the last heading above it.
void checkMacroList(std::string_view file)
{
    MacroRecord record;
    record.MacroFileLines = keptMacroLines(file);
    for (const std::string& line : record.MacroFileLines) require(!line.empty() && line.front() != ' ');
    const std::vector<MacroNames> macros = extractMacros(record);
    require(macros.size() == record.MacroHeadings.size() && record.MacroHeadings.front() == "All");
    std::size_t below = 0;
    for (std::size_t i = 1; i < macros.size(); ++i) below += macros[i].size();
    require(below <= macros[0].size() && macros[0].size() <= record.MacroFileLines.size());

    Pane text;
    text.setText(file);
    for (const std::string& name : macros[0]) {
        const std::string bytes = windows1252FromUtf8(name);
        require(utf8FromWindows1252(bytes) == name && bytes.find('=') == std::string::npos);
        if (const std::string* line = definitionOf(record.MacroFileLines, bytes))
            require(line->size() >= bytes.size() + 2);
        const bool used = isMacroUsed(text, bytes);
        require(!used || lowerWindows1252(text.Text()).find(lowerWindows1252(bytes)) != std::string::npos);
    }
}

/// Aligning changes blanks, tabs and line ends only.
void checkAlignment(std::string_view file)
{
    const auto dark = [](std::string_view text) {
        std::string rest;
        for (const char character : text) {
            if (std::string_view(" \t\r\n").find(character) == std::string_view::npos) rest += character;
        }
        return rest;
    };
    const std::string aligned = alignedText(file);
    require(dark(aligned) == dark(file));
    require(linesOf(aligned).size() == linesOf(file).size());
    require(aligned.size() <= file.size() + linesOf(file).size() * 71); // 69 blanks and a line end
}

void checkStatement(std::string_view file)
{
    Pane pane;
    pane.setText(file);
    const std::string_view head = file.substr(0, file.find_first_of(" \r\n"));
    if (!selectStatement(pane, head, Steps())) return;
    const std::string statement = pane.SelText();
    require(statement.size() >= head.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view file(reinterpret_cast<const char*>(data), size);
    checkMacroList(file);
    checkAlignment(file);
    checkStatement(file);
    return 0;
}
