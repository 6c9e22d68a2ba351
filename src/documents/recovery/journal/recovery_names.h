#pragma once

#include <string>
#include <string_view>

namespace tarvex {

/// A document's name, as a journal has it, as the name of one file: no folder, no way out of one, no hidden file, and
/// not the name of a journal. Any bytes.
std::string fileNameFor(std::string_view name);

} // namespace tarvex
