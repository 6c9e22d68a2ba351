#include "cli/macro_commands.h"

#include "cli/input.h"
#include "cli/unicode_text.h"
#include "language/macro_analysis.h"
#include "language/macro_file_lines.h"
#include "language/macros_used.h"
#include "platform/windows1252.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <unordered_map>

namespace tarvex::cli {

namespace {

/// List k has the macros under heading k; both texts are UTF-8.
struct MacroFile {
    std::vector<std::string> headings;
    std::vector<MacroNames> lists;
};

MacroFile analysed(const std::string& bytes)
{
    MacroRecord record;
    record.MacroFileLines = keptMacroLines(bytes);
    std::vector<MacroNames> lists = extractMacros(record);
    return {std::move(record.MacroHeadings), std::move(lists)};
}

/// Each heading with its macros below it, as `entry` writes them.
template <typename Entry> std::string asText(const MacroFile& file, Entry entry)
{
    std::string out;
    for (std::size_t i = 0; i < file.lists.size(); ++i) {
        appendShownUtf8(out, file.headings[i]);
        out += '\n';
        for (const std::string& name : file.lists[i]) {
            out += entry(name);
            appendShownUtf8(out, name);
            out += '\n';
        }
    }
    return out;
}

std::string dumped(const nlohmann::ordered_json& json) { return json.dump() + "\n"; }

std::unordered_map<std::string, bool> identify(const std::string& joystickText, const MacroNames& names)
{
    Pane searched;
    searched.setText(std::string(blanksBeforeText) + joystickText);
    std::unordered_map<std::string, bool> used;
    for (const std::string& name : names) {
        if (!used.contains(name)) used.emplace(name, isMacroUsed(searched, windows1252FromUtf8(name)));
    }
    return used;
}

} // namespace

int macrosCommand(const MacrosOptions& options)
{
    const MacroFile file = analysed(readInput(options.file));
    if (options.json)
        print(dumped({{"headings", file.headings}, {"lists", file.lists}}));
    else
        print(asText(file, [](const std::string&) { return "    "; }));
    return exitStatus::done;
}

int usedCommand(const UsedOptions& options)
{
    if (options.joystickFile == "-" && options.macroFile == "-") throw CallError("only one file can be standard input");
    Pane joystick;
    joystick.setText(readInput(options.joystickFile));
    Pane macros;
    const std::string macroBytes = readInput(options.macroFile);
    macros.setText(macroBytes);
    if (!canIdentify(joystick, macros)) {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(nothingToIdentify.size()), nothingToIdentify.data());
        return exitStatus::nothingToAnalyse;
    }
    const MacroFile file = analysed(macroBytes);
    const auto used = identify(joystick.Text(), file.lists.front());
    if (!options.json) {
        print(asText(file, [&](const std::string& name) { return used.at(name) ? "[x] " : "[ ] "; }));
        return exitStatus::done;
    }
    auto lists = nlohmann::ordered_json::array();
    for (const MacroNames& names : file.lists) {
        auto list = nlohmann::ordered_json::array();
        for (const std::string& name : names) list.push_back(nlohmann::ordered_json::array({name, used.at(name)}));
        lists.push_back(std::move(list));
    }
    print(dumped(lists));
    return exitStatus::done;
}

} // namespace tarvex::cli
