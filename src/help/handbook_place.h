#pragma once

#include <string>

namespace tarvex {

struct Handbook;

/// Puts the handbook's window where Platform.ini has it, in the size that it had; a place that isn't on the screen is
/// replaced.
void readHandbookPlace(Handbook& handbook);
/// Keeps the window's place, and the page that it shows.
void saveHandbookPlace(const Handbook& handbook);
/// The page that was shown last, in this run or an earlier one; empty without one.
std::string lastHandbookPage(const Handbook& handbook);

} // namespace tarvex
