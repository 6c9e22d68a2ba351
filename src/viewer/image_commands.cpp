#include "viewer/image_commands.h"

#include "documents/printing/print_pane.h"
#include "platform/dos_path.h"
#include "platform/printers.h"
#include "viewer/image_place.h"

#include <cmath>

namespace tarvex {

namespace {

const std::string& imagePath(const ViewImage& window) { return window.editor.shared.settings.ImageFilePath.whole(); }

/// Shows the picture of a file in its own size.
void show(ViewImage& window, const std::string& path)
{
    window.Picture3 = window.editor.platform.pictures.load(path);
    window.Zoom = 1;
    window.SavedAs.clear();
    RepositionControls(window);
}

void sayNotFound(ViewImage& window, const std::string& path)
{
    window.editor.platform.dialogues.show({.title = "Image file not found",
                                           .text = path + " does not exist. Select Open from the Image menu to ensure "
                                                          "the correct path to the image file."});
}

bool agreesToOverwrite(ViewImage& window, const std::string& path)
{
    if (!window.editor.platform.files.fileExists(path)) return true;
    const MessageBox question{.title = "OK to overwrite exisiting file?",
                              .text = fileNameOf(path) + " already exists. Do you want me to overwrite this file?",
                              .icon = BoxIcon::Question,
                              .buttons = BoxButtons::YesNo};
    return window.editor.platform.dialogues.show(question) == Answer::Yes;
}

/// Hundredths of an inch, without zeros at the end: "8.27", "11", "8.5".
std::string inches(int twips)
{
    constexpr double twipsPerInch = 1440;
    std::string text = std::to_string(std::lround(twips / twipsPerInch * 100));
    while (text.size() < 3) text.insert(0, 1, '0');
    text.insert(text.size() - 2, 1, '.');
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text;
}

bool fitsPaper(const LoadedPicture& picture, const Printer& printer)
{
    return picture.width() * twipsPerPixel <= printer.Width() && picture.height() * twipsPerPixel <= printer.Height();
}

bool agreesToLargePicture(ViewImage& window, const Printer& printer)
{
    const MessageBox question{
        .title = "OK to print?",
        .text = "Warning: The image size is greater than the Printer's page size settings (" + inches(printer.Width()) +
                " by " + inches(printer.Height()) +
                "). Do you still want me to try and print out the layout? This may result in a problem for your "
                "printer, or a lot of extra paper being churned out.",
        .icon = BoxIcon::Question,
        .buttons = BoxButtons::YesNo};
    return window.editor.platform.dialogues.show(question) == Answer::Yes;
}

void paint(Printer& printer, const LoadedPicture& picture)
{
    try {
        printer.PaintPicture(picture,
                             {.right = picture.width() * twipsPerPixel, .bottom = picture.height() * twipsPerPixel});
        printer.EndDoc();
    } catch (const RuntimeError&) {
        printer.KillDoc(); // half a document would keep the printer busy
        throw;
    }
}

} // namespace

void mnuImageLoad_Click(ViewImage& window)
{
    Editor& editor = window.editor;
    const std::string path = selectPicture(window.select);
    if (path.empty()) return;
    if (!editor.platform.files.fileExists(path)) return sayNotFound(window, path);
    editor.status("Opening " + path);
    const Steps step(editor.shared.errors, "IMAGE mnuImageLoad_Click");
    if (!step([&] { show(window, path); }))
        return editor.status(path + " is no picture that I can read (" + step.whyNot() + ")");
    editor.shared.settings.ImageFilePath = path;
    editor.shared.store.write(Access::SaveApps, "MODULE SaveApps");
    editor.status(path + " successfully opened");
}

void mnuImageRefresh_Click(ViewImage& window)
{
    const Steps step(window.editor.shared.errors, "IMAGE mnuImageRefresh_Click");
    if (!step([&] { show(window, imagePath(window)); }))
        window.editor.status(imagePath(window) + " couldn't be read again (" + step.whyNot() + ")");
}

void mnuShowSize_Click(ViewImage& window)
{
    const auto& picture = window.Picture3.get();
    const int width = picture ? picture->width() : 0;
    const int height = picture ? picture->height() : 0;
    window.editor.platform.dialogues.show(
        {.title = "Image size",
         .text = "Current image size is: " + std::to_string(width) + " by " + std::to_string(height) + "."});
}

void mnuImageEdit_Click(ViewImage& window)
{
    const Steps step(window.editor.shared.errors, "IMAGE mnuImageEdit_Click");
    step([&] { window.editor.platform.pictures.openOutside(imagePath(window)); });
}

void mnuFileSave_Click(ViewImage& window)
{
    Editor& editor = window.editor;
    const auto& picture = window.Picture3.get();
    if (!picture) return;
    const Steps step(editor.shared.errors, "IMAGE mnuFileSave_Click");
    const std::string& last = window.SavedAs.empty() ? imagePath(window) : window.SavedAs;
    const std::string name = fileNameOf(last);
    const bool done = step([&] {
        const auto path = editor.platform.dialogues.saveFile({.title = "",
                                                              .filter = "Picture file (*.bmp)|*.bmp",
                                                              .directory = directoryOf(last),
                                                              .suggestedName = name.substr(0, name.rfind('.')) + ".bmp",
                                                              .defaultExtension = "bmp"});
        if (!path || !agreesToOverwrite(window, *path)) return;
        editor.platform.files.write(*path, editor.platform.pictures.bitmap(*picture));
        window.SavedAs = *path;
        editor.status(fileNameOf(*path) + " saved");
    });
    if (!done) reportPaperFailure(editor, "Saving the image", step.whyNot());
}

void mnuPrint_Click(ViewImage& window)
{
    Editor& editor = window.editor;
    if (editor.platform.printers.Count() < 1) {
        editor.platform.dialogues.show({.title = "No printer detected",
                                        .text = "Sorry - I couldn't detect a printer connected to your system, so I "
                                                "can't print out this image."});
        return;
    }
    const auto& picture = window.Picture3.get();
    if (!picture) return;
    const Steps step(editor.shared.errors, "IMAGE mnuPrint_Click");
    const bool done = step([&] {
        Printer& printer = editor.platform.printers.current();
        if (!fitsPaper(*picture, printer) && !agreesToLargePicture(window, printer)) return;
        editor.status("Printing image ... hang on .... this may take a while.");
        paint(printer, *picture);
        editor.status("Printing complete");
    });
    if (!done) reportPaperFailure(editor, "Printing the image", step.whyNot());
}

void mnuFileClose_Click(ViewImage& window) { window.form.unload(); }

void mnuFileExit_Click(ViewImage& window) { window.form.unload(); }

} // namespace tarvex
