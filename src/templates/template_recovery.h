#pragma once

#include "templates/template_form.h"

namespace tarvex {

/// At the start: asks whether text that the last run left unsaved in the window is wanted, and shows it in there.
void offerTemplateRecovery(TemplateForm& window);

} // namespace tarvex
