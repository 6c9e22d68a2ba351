#pragma once

#include "platform/controls.h"
#include "shell/operation.h"

#include <array>
#include <cstddef>

namespace tarvex {

struct Editor;

enum class ColourTarget { Pane = 0, Template = 1 };

/// The small window with the colours that text is given by hand: six buttons, each beside its swatch.
struct ColourSelector {
    static constexpr std::size_t count = 6;

    ColourSelector();

    Form form;
    std::array<Button, count> Command1;
    std::array<Property<Colour>, count> Label1; ///< the swatches
    ColourTarget target = ColourTarget::Pane;   ///< whose text takes the colour
    Operation<Colour> colourTemplate;           ///< gives it to the Template Editor's text
};

/// Opens the window where its form stands.
void showColourSelector(Editor& editor, ColourTarget target);
/// The swatches take the colours of the scheme; that of "Black" stays black.
void ColourSelector_Activate(Editor& editor);
/// The selection of the target, or what is typed there next, takes the swatch's colour. That doesn't count as an edit:
/// the document's changed state stays, though the colouring has an undo level of its own. A protected pane keeps its
/// colours.
void ColourSelector_Command1_Click(Editor& editor, std::size_t index);
/// The Esc key, 27, closes the window.
void ColourSelector_KeyDown(Editor& editor, int key);
void ColourSelector_LostFocus(Editor& editor);

} // namespace tarvex
