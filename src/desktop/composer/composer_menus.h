#pragma once

#include "composer/insert_options.h"

namespace tarvex {

class QtDialogues;

/// The menus that pop up in the Composer; those of the pictures open at their control. The window outlives the
/// dialogues.
void addComposerMenus(QtDialogues& dialogues, InsertOptions& window);

} // namespace tarvex
