#pragma once

#include <cstddef>
#include <string_view>

namespace tarvex {

/// First position, from 0, at or behind `from` where `wanted` stands in `text`; npos without one. `wanted` isn't empty.
/// Runs at memory speed for short words too.
std::size_t findBytes(std::string_view text, std::string_view wanted, std::size_t from);

} // namespace tarvex
