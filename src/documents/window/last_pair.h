#pragma once

#include "documents/pair/editor.h"

#include <functional>

namespace tarvex {

/// Where the user stopped: the files of the pair with their carets and scroll positions, tiling, macro frame and tab.
/// Kept in the section LastPair of Platform.ini while the tick of the page "Extras" is set.
struct LastPair {
    explicit LastPair(Editor& theEditor) : editor(theEditor) {}

    Editor& editor;
    std::function<int(const Side&)> firstLine; ///< that is in sight, from 0; set by the view
    Signal<const Side&, int> firstLineWanted;  ///< the view is to bring it to the pane's top
};

/// The pair is closing: notes it, where the user wants that.
void noteLastPair(LastPair& pair);
/// Opens it, where the user wants that. A file that is gone leaves its document empty, and a remark. The caller keeps a
/// Loading.
void openLastPair(LastPair& pair);

} // namespace tarvex
