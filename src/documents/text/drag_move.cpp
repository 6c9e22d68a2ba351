#include "documents/text/drag_move.h"

#include <algorithm>
#include <string>

namespace tarvex {

void moveSelection(Pane& pane, std::int64_t target)
{
    const std::int64_t start = pane.SelStart();
    const std::int64_t end = start + pane.SelLength();
    target = std::clamp<std::int64_t>(target, 0, static_cast<std::int64_t>(pane.TextLength()));
    if (pane.Locked || (target >= start && target <= end)) return;

    std::string text;
    std::vector<FormatRun> runs;
    const auto take = [&](std::int64_t from, std::int64_t to) {
        text += pane.Text().substr(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from));
        for (auto i = static_cast<std::size_t>(from); i < static_cast<std::size_t>(to); ++i) {
            appendRun(runs, 1, pane.formatIdAt(i));
        }
    };
    const bool backwards = target < start;
    if (backwards) take(start, end);
    take(backwards ? target : end, backwards ? start : target);
    if (!backwards) take(start, end);

    pane.setSelStart(std::min(start, target));
    pane.setSelLength(static_cast<std::int64_t>(text.size()));
    pane.setSelRTF(RichText(pane.formats(), text, runs));
    pane.setSelStart(backwards ? target : target - (end - start));
    pane.setSelLength(end - start);
}

} // namespace tarvex
