#pragma once

#include "platform/help_system.h"
#include "shell/shared.h"

#include <string>
#include <vector>

namespace tarvex {

/// The tip of the day.
struct TipWindow {
    explicit TipWindow(Shared& theShared, Platform& thePlatform);
    TipWindow(const TipWindow&) = delete;
    TipWindow& operator=(const TipWindow&) = delete;

    Shared& shared;
    Platform& platform;
    HelpSystem* system = nullptr; ///< gives the first tip by chance
    tarvex::Form Form;
    std::vector<std::string> tips; ///< UTF-8
    int CurrentTip = 0;            ///< from 1
    Label lblTipText;
    CheckBox chkLoadTipsAtStartup;
    Button cmdNextTip;
    Button cmdOK;

private:
    Connection m_shown;
};

/// The window comes up, at a tip by chance.
void TIPS_Form_Load(TipWindow& window);
/// Reads the tips, one a line, and shows the next one. False: there is no such file, or no path.
bool LoadTips(TipWindow& window, const std::string& path);
/// Shows the current tip, if there are any.
void DisplayCurrentTip(TipWindow& window);
void cmdNextTip_Click(TipWindow& window);
/// Keeps whether the tips come up at the start, and closes.
void cmdOK_Click(TipWindow& window);

} // namespace tarvex
