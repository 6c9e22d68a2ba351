#pragma once

#include "documents/pair/editor.h"
#include "documents/recovery/recovery_format.h"

#include <vector>

namespace tarvex {

/// A journal that an earlier run of the program has left.
struct LeftJournal {
    std::uint64_t number = 0; ///< later ones have higher numbers
    Journal journal;
    bool fileIsSame = false; ///< holds what it held when the journal was begun; or there was none, and is none
};

/// Those with text to bring back, the newest first. The others of ours are removed: those that end before there is a
/// text in them, or whose text stands in another one or in the file. What isn't a journal of ours stays.
std::vector<LeftJournal> findJournals(Editor& editor);

} // namespace tarvex
