#include "documents/text/rtf/rtf.h"

#include <cstdint>
#include <cstdlib>
#include <memory>

// Any bytes give a text whose lines end in CR LF, and that text comes back from its own RTF as it was.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tarvex;
    const RichText read = readRtf({reinterpret_cast<const char*>(data), size}, std::make_shared<FormatTable>());
    if (!hasOnlyPairs(read.text())) std::abort();
    if (!(readRtf(writeRtf(read), std::make_shared<FormatTable>()) == read)) std::abort();
    return 0;
}
