#include "viewer/select_picture_form.h"

#include "platform/dos_path.h"
#include "platform/machine.h"
#include "platform/windows1252.h"
#include "shell/handler.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace tarvex {

namespace {

constexpr std::string_view above = "..";
constexpr std::array<std::string_view, 11> extensions{".bmp", ".dib", ".gif",  ".ico",  ".jpg", ".jpeg",
                                                      ".png", ".svg", ".svgz", ".webp", ".xpm"};

std::string withBackslash(std::string path)
{
    if (!path.ends_with('\\')) path += '\\';
    return path;
}

bool isRoot(const std::string& folder) { return folder.size() <= 3; }

bool isPictureName(const std::string& name)
{
    const std::string lower = lowerUtf8(name);
    return std::ranges::any_of(extensions, [&](std::string_view extension) { return lower.ends_with(extension); });
}

void sortByName(std::vector<std::string>& names)
{
    std::ranges::sort(names, {}, [](const std::string& name) { return lowerUtf8(name); });
}

/// Shows the folder; one that can't be listed is left out, and the lists stay.
void enter(SelectPictureForm& form, const std::string& folder)
{
    const FileSystem& files = form.editor.platform.files;
    if (!files.directoryExists(folder)) return;
    std::vector<std::string> folders;
    std::vector<std::string> pictures;
    for (const std::string& name : files.list(folder)) {
        if (files.directoryExists(withBackslash(folder) + name)) {
            folders.push_back(name);
        } else if (isPictureName(name)) {
            pictures.push_back(name);
        }
    }
    sortByName(folders);
    sortByName(pictures);
    if (!isRoot(folder)) folders.insert(folders.begin(), std::string(above));
    form.Folder = folder;
    form.Dir1.ListIndex = -1;
    form.Dir1.Items = folders;
    form.File1.ListIndex = -1;
    form.File1.Items = pictures;
    const std::string letter = lowerUtf8(folder.substr(0, 1)) + ":";
    form.Drive1.Text = letter;
}

std::string parentOf(const std::string& folder)
{
    std::string parent = directoryOf(folder);
    if (!isRoot(parent)) parent.pop_back();
    return parent;
}

} // namespace

SelectPictureForm::SelectPictureForm(Editor& theEditor) : editor(theEditor)
{
    Form.Caption = "Select image file to open";
    Command1.Caption = "OK";
    Command2.Caption = "Cancel";
    Drive1.Click = on(*this, Drive1_Change);
    Dir1.Click = on(*this, Dir1_Change);
    File1.Click = on(*this, File1_Click);
    Command1.handler = on(*this, Command1_Click);
    Command2.handler = on(*this, Command2_Click);
    Form.Close = on(*this, Command2_Click);
}

std::string selectPicture(SelectPictureForm& form)
{
    form.Path.clear();
    SELIMG_Form_Load(form);
    form.editor.platform.dialogues.showModal("SelectPictureForm");
    return form.Path;
}

void SELIMG_Form_Load(SelectPictureForm& form)
{
    Shared& shared = form.editor.shared;
    const Steps step(shared.errors, "SELIMG Form_Load");
    step([&] { shared.store.read(Access::GetLastImagesDirectory, "MODULE GetLastImagesDirectory"); });
    form.Label1.Caption = "";
    form.ImagePreview = nullptr;
    std::vector<std::string> drives;
    for (const DriveFolder& drive : form.editor.platform.machine.drives()) drives.push_back({drive.letter, ':'});
    form.Drive1.Items = drives;
    const std::string stored = shared.settings.ImagesDirectory.whole();
    const bool isThere = !stored.empty() && form.editor.platform.files.directoryExists(stored);
    step([&] { enter(form, isThere ? stored : shared.currentDirectory.path()); });
}

void Drive1_Change(SelectPictureForm& form)
{
    const Steps step(form.editor.shared.errors, "SELIMG Drive1_Change");
    step([&] { enter(form, form.Drive1.Text.get() + "\\"); });
    form.Drive1.Text = lowerUtf8(form.Folder.get().substr(0, 1)) + ":"; // a drive that can't be read isn't taken
}

void Dir1_Change(SelectPictureForm& form)
{
    const Steps step(form.editor.shared.errors, "SELIMG Dir1_Change");
    step([&] {
        const std::string name = form.Dir1.Items.get().at(static_cast<std::size_t>(form.Dir1.ListIndex));
        enter(form, name == above ? parentOf(form.Folder) : withBackslash(form.Folder) + name);
    });
}

void File1_Click(SelectPictureForm& form)
{
    const Steps step(form.editor.shared.errors, "SELIMG file1_Click");
    step([&] {
        const std::string name = form.File1.Items.get().at(static_cast<std::size_t>(form.File1.ListIndex));
        const std::string path = lowerUtf8(withBackslash(form.Folder) + name);
        form.Label1.Caption = path;
        form.ImagePreview = form.editor.platform.pictures.load(path);
    });
}

void Command1_Click(SelectPictureForm& form)
{
    Shared& shared = form.editor.shared;
    form.Path = form.Label1.Caption;
    shared.settings.ImagesDirectory = form.Folder.get();
    shared.store.write(Access::SaveLastImagesDirectory, "MODULE SaveLastImagesDirectory");
    form.Form.Visible = false;
}

void Command2_Click(SelectPictureForm& form)
{
    form.Path.clear();
    form.Form.Visible = false;
}

} // namespace tarvex
