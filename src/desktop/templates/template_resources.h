#pragma once

#include "templates/shipped_templates.h"

namespace tarvex {

/// The templates that are linked into the program.
std::vector<ShippedTemplate> shippedTemplates();

} // namespace tarvex
