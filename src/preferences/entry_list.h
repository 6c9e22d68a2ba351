#pragma once

#include "lists/recent_list.h"
#include "platform/controls.h"

#include <cstddef>

namespace tarvex {

// A list of the user as a page of the preferences edits it: the box shows the first column.

/// The box shows the entries; the choice stays where it was as far as it can.
void showEntries(ListBox& box, const RecentList& list);
/// Index, from 0, of the entry that is chosen. Chooses the first one when none is; throws std::out_of_range for an
/// empty list.
std::size_t chosenEntry(ListBox& box);
/// Takes an entry out of all columns, the box and the menu, and chooses the one that follows.
void removeEntry(ListBox& box, const RecentList& list, std::size_t entry);

} // namespace tarvex
