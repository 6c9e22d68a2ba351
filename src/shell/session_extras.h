#pragma once

#include <string_view>

namespace tarvex::extraKey {

/// Of the ticks for a file that another program changed, and for what the program opens when it starts.
constexpr std::string_view reloadUnmodified = "ReloadUnmodified";
constexpr std::string_view openLastPair = "OpenLastPair";

} // namespace tarvex::extraKey
