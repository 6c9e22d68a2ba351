#pragma once

#include "documents/find/find_window.h"

namespace tarvex {

/// Finds the first or next match in the chosen document.
void Command1_Click(FindAndReplace& window);
/// The same on the replace tab; a match can be replaced then.
void Command3_Click(FindAndReplace& window);

// Steps of a search that a replacement has too.

/// The document that the page's option buttons choose.
Side& chosenSide(FindAndReplace& window, const FindPage& page);
/// Takes SearchText from the page. False: there is none, and the user was informed.
bool takeSearchText(FindAndReplace& window, const FindPage& page);
/// False: there is nothing to search in, and the user was informed.
bool holdsText(FindAndReplace& window, Side& side);
void takeFindOptions(FindAndReplace& window, const FindPage& page);
/// The end of a search. A match at a position whose lower 16 bits are those of -1 ends it like none.
bool endsSearch(std::int32_t foundPosition);
/// Adds the combo's text to its items unless it is there.
void addToHistory(ComboBox& combo);

} // namespace tarvex
