#pragma once

#include "documents/pair/editor.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvex {

/// What a Browse button of the preferences asks for.
struct Browse {
    std::string_view title;
    std::string_view filter;
};

inline constexpr std::string_view executables = "Executables (*.exe)|*.exe|All files (*.*)|*.*";

/// Lets the user choose a file, from the folder of the present one, whose drive and folder become the current ones.
/// Nothing when cancelled.
std::optional<std::string> browse(Editor& editor, const Browse& what, const std::string& current);

} // namespace tarvex
