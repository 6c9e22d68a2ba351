#pragma once

#include <string_view>

namespace tarvex {

/// Width of a UTF-8 text in Helvetica, which Arial and Liberation Sans share, in the unit of `size`.
double textWidth(std::string_view text, double size, bool bold);

} // namespace tarvex
