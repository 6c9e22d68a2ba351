#include "preferences/import_form.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::array<const char*, importParts> captions{"&Settings", "&Lists of loaders", "&Templates", "&Backups"};

} // namespace

ImportForm::ImportForm()
{
    Form.Caption = "Import an old installation";
    ImportButton.Caption = "&Import";
    ImportButton.handler = [this] {
        accepted = true;
        Form.Visible = false;
    };
    CancelButton.Caption = "Cancel";
    CancelButton.handler = [this] { Form.Visible = false; };
    for (CheckBox& part : Parts) {
        part.Click = [this] {
            ImportButton.Enabled =
                std::any_of(Parts.begin(), Parts.end(), [](const CheckBox& box) { return box.Value.get(); });
        };
    }
}

void IMPORT_Form_Load(ImportForm& form, Installation installation)
{
    form.accepted = false;
    form.FolderLabel.Caption = installation.folder;
    std::string leftOut;
    bool any = false;
    for (std::size_t i = 0; i < importParts; ++i) {
        const FoundPart& part = installation.parts[i];
        const bool there = part.whyNot.empty() && !part.files.empty();
        std::string detail = part.whyNot;
        if (detail.empty()) detail = there ? sizeText(part) : "none";
        form.Parts[i].Caption = std::string(captions[i]) + " (" + detail + ")";
        form.Parts[i].Enabled = there;
        form.Parts[i].Value = there;
        any = any || there;
        leftOut += part.leftOut;
    }
    form.LeftOut.Caption = leftOut.empty() ? "" : "Left out:" + leftOut;
    form.ImportButton.Enabled = any;
    form.installation = std::move(installation);
}

} // namespace tarvex
