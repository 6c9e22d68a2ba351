#pragma once

#include "documents/pair/editor.h"

#include <array>

namespace tarvex {

/// The page "Miscellaneous".
struct MiscellaneousPage {
    explicit MiscellaneousPage(Editor& theEditor);
    MiscellaneousPage(const MiscellaneousPage&) = delete;
    MiscellaneousPage& operator=(const MiscellaneousPage&) = delete;

    Editor& editor;
    std::array<CheckBox, 3> CheckFlattenToolbar; ///< flat; gradient; may wrap
    CheckBox CheckUseTCA;
    CheckBox CheckDisableCalibrate;
    CheckBox WavPlay; ///< for those who have a start-up sound
    ComboBox ComboGamesCaption;
    CheckBox CheckExtraToolbar;
    CheckBox CheckButtonsOnStatusBar;
    CheckBox CheckMinimiseAll;
    CheckBox CheckShowTooltips; ///< in force at once
    CheckBox CheckIdentify;
    CheckBox CheckAggressiveFocus;
    TextBox DLYText; ///< whole numbers only
    std::array<OptionButton, 3> OptionImagesToShow;

private:
    Connection m_delayChanged;
};

void loadMiscellaneous(MiscellaneousPage& page);
void takeMiscellaneous(MiscellaneousPage& page);

} // namespace tarvex
