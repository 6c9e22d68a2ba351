#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace tarvex {

/// Starts a program in a session of its own: no shell, no look at PATH, standard input empty, none of this program's
/// open files but `kept` (-1: none). What it writes goes into the file `output` (-1: where this program's goes).
/// `arguments` begins with the program's absolute path. Throws RuntimeError when the program can't be started.
pid_t spawn(const std::vector<std::string>& arguments, const std::string& directory, int kept = -1, int output = -1);

/// Opens an empty file for each of the standard ones that is closed, so that no file of this program's own gets its
/// number and is taken for it. To be called before any other file is opened.
void fillStandardFiles();

/// An open file that can be read as soon as the child has ended; -1 where the system has no such thing.
int openProcess(pid_t process);

} // namespace tarvex
