#include "colour_check.h"

#include <algorithm>
#include <cstdint>

// Short texts, so that many are tried: the words of the language stand close to each other there. The first byte
// chooses the list of passes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t most = 256;
    if (size == 0) return 0;
    tarvex::checkColouring({reinterpret_cast<const char*>(data + 1), std::min(size - 1, most)}, data[0]);
    return 0;
}
