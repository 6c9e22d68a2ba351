#include "platform/dos_path.h"

#include "platform/utf8.h"
#include "platform/windows1252.h"

namespace tarvex {

namespace {

std::size_t nameStart(std::string_view path)
{
    const std::size_t separator = path.rfind('\\');
    return separator == std::string_view::npos ? 0 : separator + 1;
}

std::size_t lastThreeStart(std::string_view path)
{
    std::size_t start = path.size();
    for (int characters = 0; characters < 3 && start > 0; ++characters) {
        do --start;
        while (start > 0 && isUtf8Continuation(path[start]));
    }
    return start;
}

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

} // namespace

std::string fileNameOf(std::string_view path) { return std::string(path.substr(nameStart(path))); }

std::string directoryOf(std::string_view path) { return std::string(path.substr(0, nameStart(path))); }

std::string rootOf(std::string_view path)
{
    if (path.size() < 2 || path[1] != ':' || !isLetter(path[0])) return {};
    return std::string(path.substr(0, 2)) + "\\";
}

std::string lastThree(std::string_view path) { return lowerUtf8(path.substr(lastThreeStart(path))); }

std::string withLastThree(std::string_view path, std::string_view extension)
{
    return std::string(path.substr(0, lastThreeStart(path))).append(extension);
}

} // namespace tarvex
