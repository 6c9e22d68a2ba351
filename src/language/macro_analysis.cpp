#include "language/macro_analysis.h"

#include "language/macro_headings.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

void RemoveSpacesFromMacroName(MacroRecord& record)
{
    std::string& name = record.CurrentMacroName;
    name.resize(std::min(name.find('='), name.size()));
    stripBlanks(name);
}

std::vector<MacroNames> extractMacros(MacroRecord& record)
{
    std::vector<std::string>& lines = record.MacroFileLines;
    std::vector<MacroNames> macros(1);
    record.MacroHeadings = {allMacros};
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const CommentKind comment = commentKind(lines[i]);
        record.NotAMacroLine = comment == CommentKind::None && lines[i].find('=') != std::string::npos ? 0 : 1;
        if (isHeadingAt(lines, i, comment)) {
            cutHeading(lines[i + 1], comment);
            record.MacroHeadings.push_back(utf8FromWindows1252(headingCase(lines[i + 1])));
            macros.emplace_back();
            i += 2;
        }
        if (record.NotAMacroLine == 1) continue;
        record.CurrentMacroName = lines[i];
        RemoveSpacesFromMacroName(record);
        macros.front().push_back(utf8FromWindows1252(record.CurrentMacroName));
        if (macros.size() > 1) macros.back().push_back(macros.front().back());
    }
    return macros;
}

} // namespace tarvex
