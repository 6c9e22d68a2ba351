#pragma once

#include "documents/pair/editor.h"

#include <string>

namespace tarvex {

// A document's shadow is a file of its name in the shadows' folder that has its text with the colours.

/// Text and colours of a document from its shadow. False: there is none, or its text isn't `plain`, the one of the
/// document's file.
bool showShadow(Editor& editor, Side& side, const std::string& path, const std::string& name, const std::string& plain);

/// Writes the pane's text with its colours into the shadow of the document's name (SaveColouredTextJF,
/// SaveColouredTextMF), for the user alone. A failure is recorded but not shown: a shadow can always be made anew.
void saveColouredText(Editor& editor, const Side& side);

} // namespace tarvex
