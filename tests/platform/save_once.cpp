// Saves one file as the program does: save_once PATH CONTENT. Says what went wrong and ends with 1 when it fails.

#include "platform/posix/posix_files.h"

#include <cstdio>
#include <exception>
#include <filesystem>

int main(int count, char** arguments)
{
    if (count != 3) {
        std::fputs("usage: save_once PATH CONTENT\n", stderr);
        return 2;
    }
    try {
        const std::string directory = std::filesystem::current_path().string();
        const tarvex::DriveMap drives({"", "", directory, directory});
        tarvex::SystemCalls calls;
        tarvex::SafeWriter writer(directory + "/recovery", calls);
        tarvex::PosixFiles(drives, writer).write(drives.fromArgument(arguments[1]), arguments[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
