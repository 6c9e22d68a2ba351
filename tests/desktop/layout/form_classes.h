#pragma once

#include <set>
#include <string>

namespace tarvex {

/// Classes that the sources derive from FormWindow, directly or not, but for those that others are derived from.
std::set<std::string> formClasses();

} // namespace tarvex
