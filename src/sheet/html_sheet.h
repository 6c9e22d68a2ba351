#pragma once

#include "sheet/sheet_layout.h"

#include <string>
#include <vector>

namespace tarvex {

/// The pages as one web page that prints one of them on each sheet of paper. `title` is UTF-8.
std::string htmlSheet(const std::vector<LaidOutPage>& pages, const std::string& title);

} // namespace tarvex
