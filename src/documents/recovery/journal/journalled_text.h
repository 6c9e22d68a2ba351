#pragma once

#include "documents/pair/side.h"

namespace tarvex {

/// `tab` of the journal of a text that isn't one of the pair's.
constexpr int tabBesidePair = 3;

/// A text whose unsaved edits are kept, by reference to its owner.
struct JournalledText {
    JournalledText(Side& side)
        : tab(side.tab), pane(side.pane), FilePath(side.FilePath), FileName(side.FileName), Journal(side.Journal)
    {
    }
    /// A text beside the pair.
    JournalledText(Pane& thePane, const std::string& path, const std::string& name, JournalRecord& journal)
        : tab(tabBesidePair), pane(thePane), FilePath(path), FileName(name), Journal(journal)
    {
    }

    int tab;
    Pane& pane;
    const std::string& FilePath;
    const std::string& FileName;
    JournalRecord& Journal;
};

} // namespace tarvex
