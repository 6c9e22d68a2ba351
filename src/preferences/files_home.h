#pragma once

#include "platform/controls.h"

#include <array>

namespace tarvex {

/// The question where the user's files are to live, for a user who hasn't set the folder. While there is none, every
/// start restores the factory colours.
struct FilesHome {
    FilesHome();
    FilesHome(const FilesHome&) = delete;
    FilesHome& operator=(const FilesHome&) = delete;

    enum Choice { newFolder, ownFolder, oldInstallation, later };

    tarvex::Form Form;
    Label Question;
    std::array<OptionButton, 4> Choices;
    Button Ok;

    int chosen = newFolder;
    bool answered = false; ///< by OK; closing the window is "later"
};

/// Another choice.
void FILES_Choices_Click(FilesHome& form, int choice);

} // namespace tarvex
