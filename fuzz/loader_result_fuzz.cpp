// Any bytes as a loader's result file: it reads the same in pieces of any size, and as the whole text says.
// The first byte is the size of the pieces.

#include "download/loader_result.h"
#include "platform/lines.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

using namespace tarvex;

void require(bool holds)
{
    if (!holds) std::abort();
}

LoaderResultReader readInPieces(std::string_view file, std::size_t size)
{
    LoaderResultReader reader;
    for (; !file.empty(); file.remove_prefix(std::min(size, file.size()))) reader.take(file.substr(0, size));
    reader.finish();
    return reader;
}

bool hasLine(const LoaderResultReader& reader, std::size_t number)
{
    try {
        (void)reader.line(number);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) return 0;
    const std::size_t piece = data[0] + std::size_t{1};
    const std::string_view file(reinterpret_cast<const char*>(data) + 1, size - 1);
    const LoaderResultReader reader = readInPieces(file, piece);

    require(reader.hasError() == (file.find("ERROR") != std::string_view::npos));
    const std::vector<std::string_view> lines = linesOf(file);
    for (std::size_t number = 1; number <= 4; ++number) {
        require(hasLine(reader, number) == (number <= lines.size()));
        if (number <= lines.size())
            require(reader.line(number) == lines[number - 1].substr(0, LoaderResultReader::longestLine));
    }
    const LoaderResult result = loaderResult(reader, Steps());
    require(isValidUtf8(result.statusText()) && result.statusText().starts_with("Compile"));
    require(result.failed == reader.hasError());
    return 0;
}
