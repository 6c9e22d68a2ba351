#pragma once

#include "templates/template_form.h"

namespace tarvex {

/// Whether the text may go: it is saved, the user had it saved or gives it up. `purpose` ends the question, e.g.
/// "before exiting"; `refusal` ends the message when the save failed.
bool mayGiveUpText(TemplateForm& window, const std::string& purpose, const std::string& refusal);

/// The text of a file takes the place of the present one; one that can't be read leaves it, and the failure is on
/// record under `tag`. A file that isn't RTF, whatever its name, or that is to be `plain`, is plain text.
bool loadTemplate(TemplateForm& window, const std::string& path, const std::string& name, std::string_view tag,
                  bool plain = false);

/// Index 0 opens a file that the user chooses, 1 saves, 2 begins a new one.
void Command1_Click(TemplateForm& window, std::size_t Index);
/// Opens the default template.
void Command2_Click(TemplateForm& window);
void mnuFileSaveAs_Click(TemplateForm& window);
void mnuFileSetAsDefault_Click(TemplateForm& window);
void mnuFileLoadDefault_Click(TemplateForm& window);
/// Loads the configuration file of the loaders.
void mnuEditTmCFG_Click(TemplateForm& window);
/// Selects the entry of the download delay.
void FindDLDELAY(TemplateForm& window);

void Text1_LostFocus(TemplateForm& window);
/// Command2 follows the setting and the file that it names.
void showDefaultTemplate(TemplateForm& window);

/// An empty text without a file.
void beginNewTemplate(TemplateForm& window);

} // namespace tarvex
