#pragma once

#include "documents/pair/editor.h"

#include <string>
#include <string_view>

namespace tarvex {

/// Commands that replace a document ask before its unsaved text goes.
struct SaveQuestion {
    std::string_view text;     ///< follows the document's name in the question
    std::string_view notSaved; ///< follows it when Yes was answered and the document still isn't saved
    std::string_view notSavedTitle;
};

SaveQuestion questionBeforeNew(const Side& side);
SaveQuestion questionBeforeOpen(const Side& side);
SaveQuestion questionBeforeExit();

/// Asks when the document is modified. Yes selects its tab and saves it. False: the command must stop, because the
/// user cancelled or the document wasn't saved after all.
bool mayLeave(Editor& editor, Side& side, const SaveQuestion& question);

} // namespace tarvex
