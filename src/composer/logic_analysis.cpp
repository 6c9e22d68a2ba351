#include "composer/logic_analysis.h"

#include "platform/lines.h"

namespace tarvex {

namespace {

/// The text as it is read back from a file of its own, which doesn't stay. Where that can't be written, the text
/// itself.
std::string throughFile(Editor& editor)
{
    FileSystem& files = editor.platform.files;
    const std::string path = editor.platform.programDirectory + "\\logic.txt";
    std::string text = editor.JoystickText.Text();
    const Steps step;
    if (!step([&] { files.write(path, text); })) return text;
    step([&] { text = files.read(path); });
    step([&] { files.removeFile(path); });
    return text;
}

} // namespace

std::vector<std::string> logicalLines(std::string_view text)
{
    std::vector<std::string> lines;
    for (const std::string_view line : linesOf(text)) {
        if (line.starts_with("BTN X") || line.starts_with("DEF X")) lines.emplace_back(line);
    }
    return lines;
}

bool analyseLogic(InsertOptions& window)
{
    Editor& editor = window.editor;
    if (editor.JoystickText.TextLength() == 0) return false;
    for (Pane& field : window.flags.RichTexFlag) field.setText("");
    const std::vector<std::string> lines = logicalLines(throughFile(editor));
    if (lines.empty())
        editor.platform.dialogues.show({.title = "What logical statements?",
                                        .text = "I couldn't find any logical statements in your joystick file",
                                        .icon = BoxIcon::Information});
    for (std::size_t i = 0; i < lines.size() && i < FlagTab::count; ++i) window.flags.RichTexFlag[i].setText(lines[i]);
    return true;
}

} // namespace tarvex
