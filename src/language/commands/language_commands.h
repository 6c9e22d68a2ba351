#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Gives the language commands of the menus, and the operations that other units call, to those who do the work.
void wireLanguage(Editor& editor);

} // namespace tarvex
