#pragma once

#include "documents/pair/editor.h"
#include "documents/recovery/recovery_format.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace tarvex {

/// A journal that an earlier run of the program has left.
struct LeftJournal {
    std::uint64_t number = 0; ///< later ones have higher numbers
    Journal journal;
    bool fileIsSame = false; ///< holds what it held when the journal was begun; or there was none, and is none
};

struct FoundJournals {
    std::vector<LeftJournal> withText;   ///< to bring back, the newest first
    std::vector<std::string> unreadable; ///< paths of those that were put aside, since nothing in them can be read
};

/// Looks through the journals that were left of the texts with these tabs. Removed are those that end before there is a
/// text in them, and those whose text stands in a newer one or in the file. Those that can't be read are renamed and
/// kept, except for those of another version of the program, which stay as they are.
FoundJournals findJournals(Editor& editor, std::initializer_list<int> tabs);

} // namespace tarvex
