#pragma once

#include "language/pass_runner.h"

#include <cstdlib>
#include <string>

namespace tarvex {

inline void paintAll(Pane& pane, std::span<const ColourPass> passes)
{
    static const Settings settings = [] {
        Settings scheme;
        scheme.BTNColour = 1;
        scheme.SlashColour = 2;
        scheme.RAWColour = 3;
        scheme.MiscellaneousColour = 4;
        scheme.RemStatements = 5;
        return scheme;
    }();
    pane.setSelStart(0);
    pane.setSelLength(static_cast<std::int64_t>(pane.TextLength()));
    pane.setSelColor(0);
    float position = 0;
    std::size_t holds = 0;
    runPasses({pane, settings, position, Steps(), nullptr,
               [&](const Hold& hold) {
                   if (hold.isFirstOfRun != (holds == 0) || hold.line < 1 || hold.line > pane.lineCount()) std::abort();
                   ++holds;
               }},
              passes);
    if (holds > passes.size()) std::abort();
}

/// Any text is coloured by any list of passes: the text stays, the run comes to its end, and a second run over the
/// first one's colours changes nothing.
inline void checkColouring(std::string_view text, std::size_t list)
{
    const auto lists = {joystickPasses(), macroPasses(), templatePasses(), safeinTransferPasses(),
                        macroTransferPasses()};
    const auto passes = lists.begin()[list % lists.size()];
    Pane pane;
    pane.setText(text);
    const std::string before = pane.Text();
    paintAll(pane, passes);
    const RichText first = pane.TextRTF();
    paintAll(pane, passes);
    if (pane.Text() != before || !(pane.TextRTF() == first)) std::abort();
}

} // namespace tarvex
