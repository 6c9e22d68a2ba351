#pragma once

#include "platform/controls.h"
#include "preferences/installation.h"

#include <array>

namespace tarvex {

/// The dialogue that shows what an old installation holds and asks what to bring along.
struct ImportForm {
    ImportForm();
    ImportForm(const ImportForm&) = delete;
    ImportForm& operator=(const ImportForm&) = delete;

    tarvex::Form Form;
    Label FolderLabel; ///< DOS path of the installation
    std::array<CheckBox, importParts> Parts;
    Label LeftOut; ///< what isn't taken and why; empty: nothing
    Button ImportButton;
    Button CancelButton;

    Installation installation;
    bool accepted = false;
};

/// Shows what was found; what can be taken is ticked.
void IMPORT_Form_Load(ImportForm& form, Installation installation);

} // namespace tarvex
