#pragma once

#include "preferences/extras_page.h"
#include "shell/errors.h"

#include <string>

namespace tarvex {

// The table of the page "Extras" that says which folder each drive letter stands for.

void wireDrives(ExtrasPage& page);
void loadDrives(ExtrasPage& page);
/// Takes the changed drives into Platform.ini, each as a step of its own.
void takeDrives(ExtrasPage& page, const Steps& step);
/// Puts the changed drives into force. One that the open files or the settings are on keeps its folder until the next
/// start; a box says so.
void moveDrives(ExtrasPage& page);

/// The drive with the whole disk stays as it is: without it, files could get out of reach.
bool mayChange(const DriveFolder& drive);
/// The user wrote a folder into a row of the table; empty: the one that was found. A folder that isn't there is refused
/// with a box.
void writeDriveFolder(ExtrasPage& page, int row, const std::string& folder);
void DriveBrowse_Click(ExtrasPage& page);
void DriveAdd_Click(ExtrasPage& page);
void DriveReset_Click(ExtrasPage& page);

} // namespace tarvex
