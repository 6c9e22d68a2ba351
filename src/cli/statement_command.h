#pragma once

#include <string>

namespace tarvex::cli {

struct StatementOptions {
    std::string file;
    std::string head; ///< UTF-8, e.g. "S1"
    bool json = false;
};
/// Prints the statement with that head. Returns the exit status; a missing statement is reported on standard
/// error.
int statementCommand(const StatementOptions& options);

} // namespace tarvex::cli
