#include "shell/left_copies.h"

namespace tarvex {

void reportLeftCopies(Dialogues& dialogues, const std::vector<std::string>& paths)
{
    if (paths.empty()) return;
    std::string text =
        "Somebody pulled the plug on me while I was saving, so the file in question may only be half "
        "there. Don't panic: I had put a copy of the old one aside. Have a look, and throw the copy away "
        "when you don't need it any more:\n";
    for (const std::string& path : paths) text += "\n" + path;
    dialogues.show({.title = "Oops!", .text = text, .icon = BoxIcon::Exclamation});
}

} // namespace tarvex
