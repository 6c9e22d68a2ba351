#include "documents/files/text_files.h"

#include "documents/files/working_box.h"

namespace tarvex {

void writePlain(Editor& editor, const Side& side, const std::string& path)
{
    const WorkingBox temp(editor.TempRichTextBox);
    editor.TempRichTextBox.setText(side.pane.Text());
    editor.platform.files.write(path, editor.TempRichTextBox.Text());
}

void writePlainCopy(Editor& editor, const Side& side, const std::string& path)
{
    const WorkingBox temp(editor.TempRichTextBox);
    editor.TempRichTextBox.setText(side.pane.Text());
    editor.platform.files.writePrivate(path, editor.TempRichTextBox.Text());
}

} // namespace tarvex
