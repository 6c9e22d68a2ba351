#pragma once

#include "preferences/extras_page.h"

namespace tarvex {

/// Gives the controls of the page "Extras" their captions and handlers.
void wireExtras(ExtrasPage& page);
void loadExtras(ExtrasPage& page);
/// Takes the page into Platform.ini.
void takeExtras(ExtrasPage& page);

} // namespace tarvex
