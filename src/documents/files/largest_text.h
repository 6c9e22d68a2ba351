#pragma once

#include "documents/pair/editor.h"

#include <cstdint>
#include <string>

namespace tarvex {

/// The pane of a text holds it several times over, and no file for a controller comes near that.
constexpr std::uint64_t largestText = std::uint64_t{64} << 20;

inline bool isTooLarge(const Editor& editor, const std::string& path)
{
    return editor.platform.files.stamp(path).size > largestText;
}

} // namespace tarvex
