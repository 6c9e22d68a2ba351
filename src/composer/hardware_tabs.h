#pragma once

#include "composer/insert_options.h"

namespace tarvex {

/// Values of the setting ComposerImages.
namespace composerImages {
constexpr std::int16_t hardware = 0; ///< the controllers that the user has
constexpr std::int16_t all = 1;
constexpr std::int16_t document = 2; ///< of the controllers that the joystick file is for
} // namespace composerImages

/// Shows the pictures, buttons and menu entries of the controllers that the setting ComposerImages asks for.
void ShowApproriateTabs(InsertOptions& window);
/// Labels the WCS for the stick that it is used with.
void LabelWCS(InsertOptions& window);
/// Gives the buttons of the pictures their captions.
void captionControls(InsertOptions& window);

} // namespace tarvex
