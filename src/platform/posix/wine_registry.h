#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvex {

/// A text in the registry file of a Wine prefix, UTF-8; `bytes` is the file, `key` has "\" between its parts and begins
/// at the file's root. Letter case doesn't count. Nothing for a key or name that isn't there, or holds no text.
std::optional<std::string> wineRegistryText(std::string_view bytes, std::string_view key, std::string_view name);
/// The same of the file at a native path, which may be missing.
std::optional<std::string> readWineRegistry(const std::string& path, std::string_view key, std::string_view name);

} // namespace tarvex
