#pragma once

#include "documents/text/pane.h"
#include "language/colour_passes.h"
#include "shell/errors.h"
#include "shell/mum.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

namespace tarvex {

/// A pass came back to where it had been and would go round without end: a bracket that nothing closes, or a text too
/// long for its positions.
struct Hold {
    std::string_view word;     ///< what the pass seeks
    std::int64_t line = 0;     ///< of the match that turned the pass back, from 1
    bool isFirstOfRun = false; ///< only the first one asks for the user's patience
};

/// What a run works on and reports to. All that it refers to outlives the run.
struct PassRun {
    Pane& pane;
    const Settings& settings;              ///< the colours
    float& position;                       ///< characters; where the search goes on. Each pass begins at 0
    Steps step;                            ///< how a failed statement is dealt with
    Mum* mum = nullptr;                    ///< shows status texts and progress, if there is one
    std::function<void(const Hold&)> held; ///< the run goes on with the next pass when it returns
};

/// Paints the words of a language in the pane, pass by pass, in the order of the list. Every position that a pass
/// remembers is one of 16 bits: behind 32,767 it turns negative, a match at 65,535 ends its pass, and one behind that
/// turns it back. Such a pass, like one with an unclosed bracket, can go round for ever: that is noticed when it is
/// back in a state that it was in before, and handed to `held`.
void runPasses(const PassRun& run, std::span<const ColourPass> passes);

} // namespace tarvex
