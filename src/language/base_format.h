#pragma once

#include "documents/text/pane.h"
#include "shell/settings.h"

namespace tarvex {

/// Left indent of every paragraph, twips.
constexpr int paragraphIndent = 20;

/// Gives a whole text the plain look that colours are painted on: font of the settings, neither italic nor underlined,
/// one colour, the fixed indent. Caret to 0.
void writeBaseFormat(Pane& pane, const Settings& settings, Colour colour);
/// The pane's own font, as the settings have it.
void setPaneFont(Pane& pane, const Settings& settings);

} // namespace tarvex
