#pragma once

#include "documents/pair/editor.h"

#include <functional>
#include <string>

namespace tarvex {

/// Gives a document that is open the contents of its file. Only lines that differ are written, so that colours, caret
/// and selection of the others stay; Undo brings the old text back. The document is saved then. `colour`, if any,
/// gives the text its colours where the settings ask for that.
void takeFileText(Editor& editor, Side& side, const std::string& bytes, const std::function<void(Side&)>& colour);

} // namespace tarvex
