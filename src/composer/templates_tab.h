#pragma once

#include "composer/insert_options.h"

namespace tarvex {

// The template tab: the files of the folder Templates, of which one is on view and goes into a pane with its colours.

void wireTemplates(InsertOptions& window);
/// Lists the files "*.rtf" of the folder, then the files "*.txt".
void FillTemplates(InsertOptions& window);
/// The chosen file is shown; one that can't be read leaves the view empty.
void Templates_Click(InsertOptions& window);
/// `button` is one of mouseButton; the entry under the mouse is in ListIndex.
void Templates_MouseDown(InsertOptions& window, int button);
void TemplatesPreview_MouseDown(InsertOptions& window, int button);
/// Into the pane of the tab that is selected.
void TemplatesPreview_DblClick(InsertOptions& window);
/// 0 into the joystick file, 1 into the macro file, 2 lists the files anew.
void Command11_Click(InsertOptions& window, int Index);

} // namespace tarvex
