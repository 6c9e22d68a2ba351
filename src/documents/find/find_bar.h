#pragma once

#include "documents/find/find_window.h"

#include <cstdint>
#include <vector>

namespace tarvex {

/// The bar at the foot of the pane in front. It finds while the user writes, beginning where the caret was, and marks
/// and counts all matches.
struct FindBar {
    explicit FindBar(FindAndReplace& theForm) : editor(theForm.editor), form(theForm) {}
    FindBar(const FindBar&) = delete;
    FindBar& operator=(const FindBar&) = delete;

    Editor& editor;
    FindAndReplace& form; ///< gets the marks of the matches back when the bar goes

    Property<bool> Visible = false;
    TextBox Text;
    CheckBox MatchCase;
    CheckBox WholeWord;
    Button Previous;
    Button Next;
    Button Close;
    Label Count; ///< "3 of 17"

    std::int64_t Anchor = 0;             ///< where the search for what is being written begins, in characters
    std::vector<Connection> connections; ///< of its own controls, and of what it follows
};

/// Gives the controls of the bar and its command their handlers.
void wireFindBar(FindBar& bar);
/// Shows the bar with the keyboard. A single word that is selected is what it seeks then.
void mnuEditFindBar_Click(FindBar& bar);
/// The keyboard goes back to the pane, in which the last match stays selected.
void closeFindBar(FindBar& bar);
/// Selects the next or previous match; behind the last one comes the first.
void findNextMatch(FindBar& bar);
void findPreviousMatch(FindBar& bar);

} // namespace tarvex
