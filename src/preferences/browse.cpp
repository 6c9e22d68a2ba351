#include "preferences/browse.h"

#include "platform/dos_path.h"

namespace tarvex {

std::optional<std::string> browse(Editor& editor, const Browse& what, const std::string& current)
{
    if (!current.empty()) changeToFolderOf(editor.shared.currentDirectory, current, Steps());
    return editor.platform.dialogues.openFile(
        {.title = std::string(what.title), .filter = std::string(what.filter), .directory = directoryOf(current)});
}

} // namespace tarvex
