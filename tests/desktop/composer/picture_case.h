#pragma once

#include "shell/hardware/pictures.h"

#include <algorithm>
#include <string>

namespace tarvex {

/// A picture's name as part of a test's.
inline std::string caseOf(const Picture& picture)
{
    std::string name(picture.file);
    std::ranges::replace(name, '-', '_');
    return name;
}

} // namespace tarvex
