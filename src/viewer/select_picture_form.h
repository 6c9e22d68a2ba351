#pragma once

#include "documents/pair/editor.h"
#include "platform/controls.h"
#include "platform/pictures.h"

#include <memory>
#include <string>

namespace tarvex {

/// The dialogue that asks for a picture file: drives, folders and files, and the picture of the chosen file.
struct SelectPictureForm {
    explicit SelectPictureForm(Editor& theEditor);
    SelectPictureForm(const SelectPictureForm&) = delete;
    SelectPictureForm& operator=(const SelectPictureForm&) = delete;

    Editor& editor;
    tarvex::Form Form;
    ComboBox Drive1;
    ListBox Dir1; ///< the folder above, then those inside; a click enters one
    ListBox File1;
    Label Label1; ///< path of the chosen file
    Property<std::shared_ptr<const LoadedPicture>> ImagePreview;
    Button Command1; ///< accepts
    Button Command2; ///< cancels

    Property<std::string> Folder; ///< what Dir1 shows; "\" at the end of a root only
    std::string Path;             ///< the accepted file; empty after a cancel
};

/// Shows the dialogue; the accepted path, or empty.
std::string selectPicture(SelectPictureForm& form);

void SELIMG_Form_Load(SelectPictureForm& form);
void Drive1_Change(SelectPictureForm& form);
void Dir1_Change(SelectPictureForm& form);
void File1_Click(SelectPictureForm& form);
void Command1_Click(SelectPictureForm& form);
void Command2_Click(SelectPictureForm& form);

} // namespace tarvex
