// Any bytes as the request of another process: a request is read as nothing else than what wrote it.

#include "platform/posix/running_instance.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto request = tarvex::readRequest(bytes);
    if (!request) return 0;
    require(std::count(bytes.begin(), bytes.end(), '\0') == 4 && bytes.ends_with(request->token + '\0'));
    require(bytes.find(request->path) != std::string_view::npos);
    require(!tarvex::readRequest(bytes.substr(0, size - 1)));
    return 0;
}
