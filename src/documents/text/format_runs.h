#pragma once

#include "documents/text/character_format.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarvex {

/// A stretch of characters of one format.
struct FormatRun {
    std::uint32_t length = 0;
    FormatId format = 0;
    bool operator==(const FormatRun&) const = default;
};

/// End of the stretch of equal formats that begins at `from`, at most `end`. `from` is below `end`.
std::size_t stretchEnd(const FormatId* formats, std::size_t from, std::size_t end);

/// Lengthens the last run, or begins another where the format differs. No length: nothing happens.
void appendRun(std::vector<FormatRun>& runs, std::size_t length, FormatId format);

/// Runs of the characters from `begin` up to `end`; neighbours differ.
std::vector<FormatRun> runsOf(const FormatId* formats, std::size_t begin, std::size_t end);

/// The format of each character; runs that cover more or less than `size` characters are cut, or filled with format 0.
std::vector<FormatId> flattened(const std::vector<FormatRun>& runs, std::size_t size);

} // namespace tarvex
