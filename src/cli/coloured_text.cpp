#include "cli/coloured_text.h"

namespace tarvex::cli {

std::vector<ColourRun> colourRuns(const Pane& pane)
{
    std::vector<ColourRun> runs;
    std::size_t start = 0;
    for (const FormatRun& run : pane.runs()) {
        const Colour colour = (*pane.formats())[run.format].colour;
        if (!runs.empty() && runs.back().colour == colour)
            runs.back().length += run.length;
        else
            runs.push_back({start, run.length, colour});
        start += run.length;
    }
    return runs;
}

} // namespace tarvex::cli
