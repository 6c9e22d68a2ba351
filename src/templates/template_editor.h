#pragma once

#include "templates/template_form.h"

namespace tarvex {

/// Gives the commands of the menus and the window's controls their handlers.
void wireTemplateEditor(TemplateForm& window);

void Form_Load(TemplateForm& window);
/// False: the user, or a save that failed, keeps the window open.
bool Form_QueryUnload(TemplateForm& window);
/// The same, and takes it down.
bool closeTemplateEditor(TemplateForm& window);
void UpdateTooltips(TemplateForm& window);
void ToggleButton1_Click(TemplateForm& window);
void CmndPrint_Click(TemplateForm& window);

} // namespace tarvex
