#pragma once

#include "templates/template_form.h"

namespace tarvex {

// The search in the Template Editor's text.

void wireTemplateFind(TemplateForm& window);

/// Shows the row, with what is selected as the text to look for.
void mnuFind_Click(TemplateForm& window);
/// Selects the next match behind the caret; behind the last one comes the first.
void mnuFindNext_Click(TemplateForm& window);
/// The same, backwards.
void mnuFindPrevious_Click(TemplateForm& window);
void closeTemplateFind(TemplateForm& window);

} // namespace tarvex
