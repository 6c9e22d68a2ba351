#pragma once

#include "help/about.h"
#include "help/handbook.h"
#include "help/info_window.h"
#include "help/tips.h"

namespace tarvex {

/// Everything that helps the user, and the commands of the Help menu.
struct Help {
    explicit Help(Editor& theEditor);
    Help(const Help&) = delete;
    Help& operator=(const Help&) = delete;

    /// What the system offers; outlives this. Before the program starts.
    void useSystem(HelpSystem& system);

    Editor& editor;
    Handbook handbook;
    InfoWindow info;
    TipWindow frmTip;
    AboutWindow frmAbout;
};

void wireHelp(Help& help);

/// The user's own Tarvex.hlp, if there is one, by the system's viewer; the handbook otherwise.
void mnuHelpContents_Click(Help& help);
void mnuTMhelp_Click(Help& help, int Index);
void mnuHowDoIArray_Click(Help& help, int Index);

} // namespace tarvex
