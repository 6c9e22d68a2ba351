#pragma once

#include "documents/editor.h"

namespace tarvex {

/// Gives the commands and operations around the macro list to those who do the work.
void wireMacros(Editor& editor);

} // namespace tarvex
