#include "cli/controls_command.h"

#include "cli/input.h"
#include "cli/unicode_text.h"
#include "composer/controls/assigned_controls.h"
#include "platform/text.h"
#include "platform/windows1252.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace tarvex::cli {

namespace {

using Controls = std::vector<AssignedControl>;

std::string asJson(const Controls& controls)
{
    auto list = nlohmann::ordered_json::array();
    for (const AssignedControl& control : controls) {
        nlohmann::ordered_json one{{"control", control.name}, {"statement", nullptr}, {"line", nullptr}};
        if (control.statement) {
            one["statement"] = utf8FromWindows1252(*control.statement);
            one["line"] = control.line;
        }
        list.push_back(std::move(one));
    }
    return list.dump() + "\n";
}

/// Name, line and statement in columns; further lines of a statement stand below its first.
std::string asText(const Controls& controls)
{
    constexpr std::size_t nameWidth = 8;
    constexpr std::size_t lineWidth = 7;
    std::string out;
    for (const AssignedControl& control : controls) {
        std::string row = control.name;
        if (control.statement) {
            row.resize(std::max(nameWidth, row.size() + 1), ' ');
            std::string line = std::to_string(control.line) + "  ";
            row += std::string(lineWidth - std::min(lineWidth, line.size()), ' ') + line;
            std::string statement;
            appendShown(statement, *control.statement);
            for (std::size_t end = 0; (end = statement.find('\n', end)) != std::string::npos; ++end)
                statement.insert(end + 1, nameWidth + lineWidth, ' ');
            row += statement;
        }
        out += row + "\n";
    }
    return out;
}

} // namespace

int controlsCommand(const ControlsOptions& options)
{
    const Controls controls = controlsOfDocument(options.file, withWindowsLineEnds(readInput(options.file)));
    print(options.json ? asJson(controls) : asText(controls));
    return exitStatus::done;
}

} // namespace tarvex::cli
