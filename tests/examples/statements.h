// Whether a joystick file's statement is one of those the files in examples/ may use.
#pragma once

#include <set>
#include <string>

namespace examples {

/// Takes one statement without comments, its continuation lines joined. Its words must be those of the language,
/// with as many fields as the statement wants, and what it sends must be keys or names in `macros`, letter for letter.
bool isKnownStatement(const std::string& statement, const std::set<std::string>& macros);

} // namespace examples
