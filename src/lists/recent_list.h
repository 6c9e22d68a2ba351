#pragma once

#include "platform/controls.h"
#include "shell/setting_text.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tarvex {

/// A list that the user fills by use, the newest entry first: parallel columns of texts with a count held apart, and
/// the menu array that shows the first column, item i for entry i (both from 1). Names its parts; owns nothing.
struct RecentList {
    std::int16_t& count;
    std::vector<std::vector<SettingText>*> columns; ///< at least one
    MenuArray& menu;
};

/// A list that is full loses its last entry to a new one. One that a damaged file made longer stays as long as it is.
constexpr int mostEntries = 30;

/// Makes all columns as long as the count says, keeping what they hold. A count below 0 becomes 0.
void resizeColumns(const RecentList& list);
/// Makes menu items as many as there are entries, and gives them the texts of the first column. The pattern at 0 is
/// seen only while there are none.
void showMenu(const RecentList& list);
/// -1 when an item, from 1 to the count, has exactly this caption, else 0.
std::int16_t isOnMenu(const RecentList& list, const std::string& caption);
/// Puts an entry, a text for each column, first: the one of the same first text moves there and takes the other texts
/// (of several the last, unless one is the first already), otherwise it is a new one. Texts that were cut are the same
/// when they are so as a whole. The menu follows.
void putOnTop(const RecentList& list, const std::vector<SettingText>& entry);

} // namespace tarvex
