#include "cli/statement_command.h"

#include "cli/input.h"
#include "cli/unicode_text.h"
#include "language/statements.h"
#include "platform/windows1252.h"

#include <nlohmann/json.hpp>

#include <cstdio>

namespace tarvex::cli {

int statementCommand(const StatementOptions& options)
{
    Pane pane;
    pane.setText(readInput(options.file));
    if (!selectStatement(pane, windows1252FromUtf8(options.head), Steps())) {
        std::fprintf(stderr, "tarvexctl: there is no statement %s in %s\n", options.head.c_str(),
                     displayName(options.file).c_str());
        return exitStatus::nothingToAnalyse;
    }
    if (options.json) {
        const nlohmann::ordered_json json{
            {"start", pane.SelStart()}, {"length", pane.SelLength()}, {"text", utf8FromWindows1252(pane.SelText())}};
        print(json.dump() + "\n");
    } else {
        std::string out;
        appendShown(out, pane.SelText());
        print(out + "\n");
    }
    return exitStatus::done;
}

} // namespace tarvex::cli
