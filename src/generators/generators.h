#pragma once

#include "generators/heading.h"
#include "generators/single_text_form.h"
#include "generators/title.h"

namespace tarvex {

/// The dialogues that write comment blocks, and the commands that show them.
struct Generators {
    explicit Generators(Editor& theEditor)
        : editor(theEditor), title(theEditor), heading(theEditor.shared), rem(theEditor.shared)
    {
    }
    Generators(const Generators&) = delete;
    Generators& operator=(const Generators&) = delete;

    Editor& editor;
    Title title;
    Heading heading;
    SingleTextForm rem;
};

void wireGenerators(Generators& generators);

/// A title block at the start of the selected file.
void mnuInsertTitle_Click(Generators& generators);
/// A heading between two rules, on lines of its own.
void mnuInsertHeading_Click(Generators& generators);
/// A Rem statement at the caret.
void mnuInsertRemStatement_Click(Generators& generators);

} // namespace tarvex
