// Any bytes as the registry of a Wine prefix: no text is longer than the file could make it, and a key that follows
// anything is found.

#include "platform/posix/wine_registry.h"

#include <cstdint>
#include <cstdlib>

namespace {

using namespace tarvex;

void require(bool holds)
{
    if (!holds) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const std::string_view key : {"Software\\X", "a", ""}) {
        const auto text = wineRegistryText(bytes, key, "PATH");
        require(!text || text->size() <= 2 * size);
    }
    const std::string file = std::string(bytes) + "\n[After\\\\All]\n\"PATH\"=\"c:\\\\x\\x00e9\"\n";
    const auto text = wineRegistryText(file, "AFTER\\all", "path");
    require(text.has_value());
    require(*text == "c:\\x\xC3\xA9" || size > 10); // a longer file may have a key of that name itself
    return 0;
}
