#pragma once

#include "documents/pair/editor.h"

#include <array>

namespace tarvex {

/// The page "Open/Save/Undo".
struct SavingPage {
    explicit SavingPage(Editor& theEditor);
    SavingPage(const SavingPage&) = delete;
    SavingPage& operator=(const SavingPage&) = delete;

    Editor& editor;
    TextBox Text3;                  ///< minutes between automatic saves
    std::array<CheckBox, 2> Check3; ///< save automatically; back up what is saved
    CheckBox OpenBothChk;
    CheckBox SaveBothChk;
    TextBox TxtUndoLevels;
    Button Command11; ///< gives the undo levels up
    CheckBox CheckUndoSave;
    CheckBox CheckHighlightOnUndo;
    bool loading = false; ///< the controls are being filled by the program

private:
    Connection m_minutesChanged;
    Connection m_levelsChanged;
};

void loadSaving(SavingPage& page);
void takeSaving(SavingPage& page);

/// The minutes as they are typed: empty turns the automatic save off, less than 1 becomes 1, and what is no number, a
/// negative one or one beyond 16 bits becomes 10, with a box that says so.
void Text3_Change(SavingPage& page);
void Text3_LostFocus(SavingPage& page);
/// The undo levels as they are typed, kept in 10 to 30000; the box follows when it is left.
void TxtUndoLevels_Change(SavingPage& page);
void TxtUndoLevels_LostFocus(SavingPage& page);
void PREFS_Command11_Click(SavingPage& page);

} // namespace tarvex
