// Checks raw scan codes: written as the loaders want them, and no key left held down.
#pragma once

#include "controller_text.h"

namespace examples {

/// Groups that are not "#xx" bytes, two upper-case hexadecimal digits each, with one blank between.
Problems rawFormProblems(const std::vector<std::string>& groups);
/// Follows the groups of one statement as one stream of scan code set 2: bytes that are no key's code, a key
/// made twice or broken before it is made, and a key still down at the end. The groups must have the right form.
Problems scanCodeProblems(const std::vector<std::string>& groups);

} // namespace examples
