#pragma once

#include <string_view>

// What RTF has no word for is written as a group of our own, "{\*\name123}", which other programs pass over.

namespace tarvex::rtfMark {

constexpr std::string_view size = "tarvexsize";     ///< font size that isn't whole half points: the bits of the float
constexpr std::string_view colour = "tarvexcolour"; ///< colour of more than 24 bits
constexpr std::string_view cr = "tarvexcr";         ///< the CR of the next line end has the format that stands here

} // namespace tarvex::rtfMark
