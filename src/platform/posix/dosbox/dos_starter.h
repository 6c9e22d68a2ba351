#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvex {

/// What a program under DOS is started with, as it is seen there.
struct DosStart {
    char drive = 'c';      ///< its current directory
    std::string directory; ///< with the drive
    std::string program;   ///< full path
    std::string tail;      ///< what follows the program's name on its command line, as bytes; at most dosTailLimit
};

/// The longest tail that a DOS program can be given, in bytes.
constexpr std::size_t dosTailLimit = 126;

/// A small DOS program, a .COM file, that changes to the directory, runs the program with exactly this tail, and ends
/// when it ends. No command interpreter sees any of the texts, so nothing in them can be taken for a command.
std::string dosStarter(const DosStart& start);

} // namespace tarvex
