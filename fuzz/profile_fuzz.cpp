#include "platform/profile_file.h"
#include "support/memory_files.h"

#include <cstdint>
#include <cstdlib>

// Whatever a settings file holds, a value written is the one read, its neighbours stay, and writing it again writes
// nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tarvex;
    constexpr const char* path = R"(c:\Tarvex.ini)";
    constexpr std::size_t buffer = 10'000; // more than any input holds
    MemoryFiles files;
    files.addFile(path, {reinterpret_cast<const char*>(data), size});

    ProfileFile before(files, path);
    const std::string neighbour = before.readString("Section", "Other", "none", buffer);
    const std::string elsewhere = before.readString("FileLocations", "Key", "none", buffer);
    before.writeString("Section", "Key", "42 apples");

    ProfileFile after(files, path);
    if (after.readString("Section", "Key", "none", buffer) != "42 apples") std::abort();
    if (after.readInt("Section", "Key", 0) != 42) std::abort();
    if (after.readString("Section", "Other", "none", buffer) != neighbour) std::abort();
    if (after.readString("FileLocations", "Key", "none", buffer) != elsewhere) std::abort();

    const std::string written = files.read(path);
    after.writeString("Section", "Key", "42 apples");
    if (files.read(path) != written) std::abort();
    return 0;
}
