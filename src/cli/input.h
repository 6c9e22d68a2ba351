#pragma once

#include <stdexcept>
#include <string>

namespace tarvex::cli {

/// What ends tarvexctl.
namespace exitStatus {
constexpr int done = 0;
constexpr int wrongCall = 2;   ///< or a file that can't be read
constexpr int held = 3;        ///< a pass was held; the result is printed all the same
constexpr int unknownCode = 3; ///< raw codes that no key has; the others are printed all the same
constexpr int nothingToAnalyse = 4;
} // namespace exitStatus

/// The call can't be served: ends the program with exitStatus::wrongCall and a line on standard error.
class CallError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The bytes of a file by native path, or its text when it is in UTF-16; "-" is standard input. Takes pipes and
/// devices, up to 256 MB. Throws CallError.
std::string readInput(const std::string& path);

/// The name by which messages call it.
std::string displayName(const std::string& path);

/// Puts bytes on standard output. Throws CallError when they don't get there.
void print(const std::string& bytes);

} // namespace tarvex::cli
