#pragma once

#include "documents/pair/editor.h"
#include "documents/recovery/journal/journalled_text.h"
#include "documents/recovery/recovery_format.h"

#include <functional>
#include <string>
#include <vector>

namespace tarvex {

// At the start: text that the last run of the program left behind unsaved. Each document comes back modified, with its
// saved text one undo away; under its own name when its file still is what it was, else under a new name that Save asks
// about, so that nothing is written over.

/// Finds the journals left behind and asks whether their texts are wanted. The user is informed of those that can't be
/// read, which are kept. Those that aren't go into the journals'
/// directory as plain text, and aren't asked about again. Gives the paths of what is open now for that reason, under
/// their old and new names; none when nothing was brought back.
std::vector<std::string> offerRecovery(Editor& editor);

/// Shows the text of a journal as the user left it, with the saved text one undo away. `fileIsSame`: the file is what
/// it was when the journal was begun.
using BringBack = std::function<void(const Journal& journal, bool fileIsSame)>;
/// The same for a text beside the pair, in a question of its own. `untitled` is the name that it gets when its file was
/// changed meanwhile.
void offerRecovery(Editor& editor, const JournalledText& text, const std::string& untitled, const BringBack& bringBack);

/// Writes the text of a document that goes without having been saved into the journals' directory. Gives the path of
/// the copy, or the reason why there is none.
struct AsideCopy {
    std::string path;   ///< empty: it couldn't be written
    std::string reason; ///< then
};
AsideCopy putAside(Editor& editor, const Side& side);

/// Whether the path is one of them, in any case.
bool isAmong(const std::vector<std::string>& paths, const std::string& path);

} // namespace tarvex
