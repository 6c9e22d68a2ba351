#include "documents/files/text_files.h"

#include "documents/files/largest_text.h"
#include "documents/files/outside_change.h"
#include "documents/files/working_box.h"
#include "platform/utf16.h"

namespace tarvex {

void keepWhatTextLacks(Editor& editor, const std::string& path)
{
    const FileSystem& files = editor.platform.files;
    if (!files.fileExists(path) || isTooLarge(editor, path)) return;
    std::string bytes;
    const Steps step; // a file that can't be read may still be replaced
    step([&] { bytes = files.read(path); });
    if (charactersLostFromFile(bytes) > 0) keepOutsideVersion(editor, path);
}

void writePlain(Editor& editor, const Side& side)
{
    keepWhatTextLacks(editor, side.FilePath);
    const WorkingBox temp(editor.TempRichTextBox);
    editor.TempRichTextBox.setText(side.pane.Text());
    editor.platform.files.write(side.FilePath, editor.TempRichTextBox.Text());
}

void writePlainCopy(Editor& editor, const Side& side, const std::string& path)
{
    const WorkingBox temp(editor.TempRichTextBox);
    editor.TempRichTextBox.setText(side.pane.Text());
    editor.platform.files.writePrivate(path, editor.TempRichTextBox.Text());
}

} // namespace tarvex
