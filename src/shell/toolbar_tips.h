#pragma once

#include "shell/mum.h"
#include "shell/settings.h"

namespace tarvex {

/// Tooltips of the toolbar by the settings, or none at all (UpdateTooltips of Mum). The table counts one too many from
/// button 45 on, and so the help button shows the tip of the preferences.
void UpdateTooltips(Mum& mum, const Settings& settings);
/// The tips of the open and the save button, which follow what these open and save.
void UpdateToolBarOpenSaveTooltips(Mum& mum, const Settings& settings);
/// Shows or hides the extra buttons.
void ShowExtraButtons(Mum& mum, const Settings& settings);

} // namespace tarvex
