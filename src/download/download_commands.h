#pragma once

#include "documents/editor.h"

namespace tarvex {

/// Gives the commands that run outside programs their work.
void wireDownload(Editor& editor);

} // namespace tarvex
