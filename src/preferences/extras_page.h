#pragma once

#include "documents/pair/editor.h"
#include "platform/machine.h"

#include <array>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace tarvex {

/// The page "Extras": what belongs to this machine, and choices that go beyond the program's settings. Platform.ini
/// takes it when the preferences close; the appearance is in force and written at once.
struct ExtrasPage {
    explicit ExtrasPage(Editor& theEditor) : editor(theEditor) {}
    ExtrasPage(const ExtrasPage&) = delete;
    ExtrasPage& operator=(const ExtrasPage&) = delete;

    /// What runs programs of another system: chosen by its native path, or with an empty box the one that PATH has.
    struct RunnerRow {
        Runner which = Runner::Wine;
        TextBox Path;
        Property<std::string> Found; ///< where PATH has it; empty: nowhere
        Button Browse;
        Button Test;
        Label Answer; ///< what the last test gave
    };

    Editor& editor;
    Property<std::vector<DriveFolder>> Drives; ///< as they will be
    Property<int> DriveRow = -1;               ///< the row that is chosen, from 0; -1: none
    Button DriveBrowse;                        ///< asks for the folder of the chosen drive
    Button DriveAdd;                           ///< asks for a folder and puts it behind the first free letter from d
    Button DriveReset;                         ///< takes the user's choice for the chosen drive back
    std::array<RunnerRow, 2> Runners;
    std::array<OptionButton, 4> Appearance; ///< as the desktop; light; dark; high contrast
    TextBox SettingsFolder;                 ///< native path; not to be changed
    Button OpenFolder;
    Button Import;              ///< brings an old installation along
    std::deque<CheckBox> Ticks; ///< one for each row of extraTicks()

    bool unwritten = false;    ///< the file didn't take the page: what it shows counts until it does
    DriveChoices chosenDrives; ///< of the user
    DriveChoices drivesBefore; ///< the same when the page was loaded

    std::vector<Connection> connections;
};

} // namespace tarvex
