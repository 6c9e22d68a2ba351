#pragma once

#include "documents/find/find_window.h"

namespace tarvex {

/// Gives the controls of the window and the commands of the menu their handlers.
void wireFindAndReplace(FindAndReplace& window);

void Form_Load(FindAndReplace& window);
void Form_Unload(FindAndReplace& window);
/// Another tab of the window was selected, by the user or by the program.
void SSTab1_Click(FindAndReplace& window);

void mnuEditFind_Click(FindAndReplace& window);
void mnuEditReplace_Click(FindAndReplace& window);
void mnuEditGoto_Click(FindAndReplace& window);

} // namespace tarvex
