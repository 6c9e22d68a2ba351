#pragma once

#include "platform/controls.h"
#include "platform/profile_file.h"

#include <string>

namespace tarvex {

class Desktop;

/// Puts the handbook's window where Platform.ini has it, in the size that it had; a place that isn't on the screen is
/// replaced, and the size of a damaged file is 0.
void readHandbookPlace(Form& form, const ProfileFile& ini, const Desktop& desktop);
/// Keeps the window's place, unless it is minimised, and the page that it shows.
void saveHandbookPlace(const Form& form, const std::string& page, ProfileFile& ini);
/// The page of the last run; empty without one.
std::string lastHandbookPage(const ProfileFile& ini);

} // namespace tarvex
