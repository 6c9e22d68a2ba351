#include "documents/text/format_runs.h"

#include <algorithm>
#include <cstring>

namespace tarvex {

std::size_t stretchEnd(const FormatId* formats, std::size_t from, std::size_t end)
{
    constexpr std::size_t step = sizeof(std::uint64_t) / sizeof(FormatId);
    const FormatId format = formats[from];
    const std::uint64_t pattern = format * std::uint64_t{0x0001000100010001};
    for (; from + step <= end; from += step) {
        std::uint64_t block = 0;
        std::memcpy(&block, formats + from, sizeof block);
        if (block != pattern) break;
    }
    while (from < end && formats[from] == format) ++from;
    return from;
}

void appendRun(std::vector<FormatRun>& runs, std::size_t length, FormatId format)
{
    if (length == 0) return;
    if (!runs.empty() && runs.back().format == format) {
        runs.back().length += static_cast<std::uint32_t>(length);
    } else {
        runs.push_back({static_cast<std::uint32_t>(length), format});
    }
}

std::vector<FormatRun> runsOf(const FormatId* formats, std::size_t begin, std::size_t end)
{
    std::vector<FormatRun> runs;
    while (begin < end) {
        const std::size_t next = stretchEnd(formats, begin, end);
        appendRun(runs, next - begin, formats[begin]);
        begin = next;
    }
    return runs;
}

std::vector<FormatId> flattened(const std::vector<FormatRun>& runs, std::size_t size)
{
    std::vector<FormatId> formats;
    formats.reserve(size);
    for (const FormatRun& run : runs) {
        const std::size_t room = size - formats.size();
        formats.insert(formats.end(), std::min<std::size_t>(run.length, room), run.format);
    }
    formats.resize(size);
    return formats;
}

} // namespace tarvex
