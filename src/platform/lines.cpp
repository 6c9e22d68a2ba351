#include "platform/lines.h"

namespace tarvex {

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        if (end == std::string_view::npos) {
            lines.push_back(text);
            break;
        }
        lines.push_back(text.substr(0, end));
        const bool pair = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
        text.remove_prefix(end + (pair ? 2 : 1));
    }
    return lines;
}

} // namespace tarvex
