#pragma once

#include <string>
#include <string_view>

namespace tarvex::cli {

/// Adds bytes of a controller file as UTF-8 that is safe to show: control characters other than tab and line feed
/// become visible signs, and carriage returns go.
void appendShown(std::string& out, std::string_view bytes);
/// The same for UTF-8 text.
void appendShownUtf8(std::string& out, std::string_view text);
/// The same for HTML, with its own characters written as entities.
void appendHtml(std::string& out, std::string_view bytes);

} // namespace tarvex::cli
