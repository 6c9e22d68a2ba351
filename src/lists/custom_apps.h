#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Reads the user's own programs, and the files of the viewers, and brings the menu up to date.
void GetCustomApps(Editor& editor);
/// Names the four items and shows those in use; with none in use their dividing line goes too.
void UpdateMnuCustomApps(Editor& editor);
void SaveApps(Editor& editor);

} // namespace tarvex
