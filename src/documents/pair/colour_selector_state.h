#pragma once

#include "platform/controls.h"
#include "shell/operation.h"
#include "shell/settings.h"
#include "shell/tool_form.h"

#include <array>
#include <cstddef>
#include <span>

namespace tarvex {

enum class ColourTarget { Pane = 0, Template = 1 };

/// The small window with the colours that text is given by hand: six buttons, each beside its swatch.
struct ColourSelector {
    static constexpr std::size_t count = 6;

    ColourSelector();

    ToolForm form{"ColourSelector"};
    std::array<Button, count> Command1;
    std::array<Property<Colour>, count> Label1; ///< the swatches
    ColourTarget target = ColourTarget::Pane;   ///< whose text takes the colour
    Operation<Colour> colourTemplate;           ///< gives it to the Template Editor's text
};

/// A button of the window and the setting whose colour it gives.
struct ColourChoice {
    const char* caption;
    Colour Settings::*colour; ///< none: black
};
std::span<const ColourChoice, ColourSelector::count> colourChoices();

} // namespace tarvex
