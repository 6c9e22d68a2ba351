#include "language/commands/align_slashes.h"

#include "documents/editing/pane_change.h"
#include "documents/editing/undo.h"
#include "documents/pair/loading.h"
#include "documents/pair/protected_pane.h"
#include "language/slash_columns.h"

#include <optional>

namespace tarvex {

namespace {

constexpr const char* unalignedFile = "c:\\TXalign.txt";

void removeIfThere(FileSystem& files, const std::string& path)
{
    if (files.fileExists(path)) files.removeFile(path);
}

/// Nothing is written where the text couldn't be saved or read back.
void alignThroughFiles(FileSystem& files, const std::string& text, int indent)
{
    removeIfThere(files, unalignedFile);
    removeIfThere(files, alignedFile);
    files.writePrivate(unalignedFile, text);
    files.writePrivate(alignedFile, alignedText(files.read(unalignedFile), indent));
}

/// A plain text in the base format, as one edit by the user.
void loadPlain(Editor& editor, Side& side, const std::string& text)
{
    Pane& pane = side.pane;
    {
        const Loading loading(editor.shared);
        pane.setTextRTF({}); // drops the formats of the old text
        applyBaseFormat(editor, pane);
    }
    writeAsOneLevel(side, [&] { pane.setText(text); });
    side.Caret = 0;
    side.SelectionLength = 0;
}

} // namespace

void AlignSlashes(Editor& editor)
{
    const Steps step;
    Side& side = editor.selected();
    if (refuseProtected(editor) || side.pane.TextLength() == 0) return;
    FileSystem& files = editor.platform.files;
    const Settings& settings = editor.shared.settings;
    editor.status(" Hang on - this could take time ...");
    std::optional<std::string> aligned;
    step([&] {
        alignThroughFiles(files, side.pane.Text(), settings.IndentAsWell == 1 ? settings.IndentSpaces : 0);
        aligned = files.read(alignedFile);
    });
    if (aligned) step([&] { loadPlain(editor, side, *aligned); });
    // The joystick file is coloured in either pane's case.
    if (settings.ApplyColoursOnFileOpen == 1) step([&] { editor.menus.mnuViewColourJoystick.Click(); });
    step([&] { removeIfThere(files, unalignedFile); });
    step([&] { removeIfThere(files, alignedFile); });
    editor.status(" OK - done!");
}

void AlignForLayouts(Editor& editor)
{
    const Steps step;
    Pane& scratch = editor.TempRichTextBox;
    step([&] { scratch.setText(editor.JoystickText.Text()); });
    step([&] { alignThroughFiles(editor.platform.files, scratch.Text(), 0); });
    step([&] { removeIfThere(editor.platform.files, unalignedFile); });
}

} // namespace tarvex
