#include "colour_check.h"

#include <algorithm>
#include <cstdint>

// Texts behind so many blanks that the passes' positions of 16 bits turn negative or come to their start again. The
// first byte chooses the list of passes and how many blanks.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t most = 256;
    if (size == 0) return 0;
    std::string text(data[0] < 128 ? 32'700 : 65'500, ' ');
    text.append(reinterpret_cast<const char*>(data + 1), std::min(size - 1, most));
    tarvex::checkColouring(text, data[0]);
    return 0;
}
