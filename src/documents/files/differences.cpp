#include "documents/files/differences.h"

#include "documents/files/largest_text.h"
#include "platform/text.h"
#include "platform/utf16.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

std::string withoutEnd(std::string_view line)
{
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) line.remove_suffix(1);
    return utf8FromWindows1252(line);
}

std::vector<std::string> shownLines(const std::vector<std::string_view>& lines)
{
    std::vector<std::string> shown;
    std::ranges::transform(lines, std::back_inserter(shown), withoutEnd);
    return shown;
}

std::string fileText(const Editor& editor, const Side& side)
{
    const Steps step(editor.shared.errors, "DIFFERENCES Form_Load");
    std::string text;
    if (!isTooLarge(editor, side.FilePath))
        step([&] { text = withWindowsLineEnds(textOfFile(editor.platform.files.read(side.FilePath))); });
    return text;
}

void showCount(Differences& window)
{
    const std::size_t all = window.Hunks.size();
    const int now = window.Current;
    window.Count.Caption =
        all == 0 ? "No line differs" : "Difference " + std::to_string(now + 1) + " of " + std::to_string(all);
    window.Previous.Enabled = now > 0;
    window.Next.Enabled = now + 1 < static_cast<int>(all);
}

void go(Differences& window, int by)
{
    const int last = static_cast<int>(window.Hunks.size()) - 1;
    window.Current = std::clamp(window.Current + by, std::min(0, last), last);
    showCount(window);
}

} // namespace

void wireDifferences(Differences& window)
{
    window.Form.Caption = "What's the difference?";
    window.Previous.Caption = "&Previous";
    window.Next.Caption = "&Next";
    window.Close.Caption = "&Close";
    window.Previous.ToolTipText = "Previous difference (Alt+P, F7)";
    window.Next.ToolTipText = "Next difference (Alt+N, F8)";
    window.Previous.handler = [&window] { go(window, -1); };
    window.Next.handler = [&window] { go(window, 1); };
    window.Close.handler = [&window] { window.Form.Visible = false; };
}

void loadDifferences(Differences& window)
{
    const Side& side = window.editor.selected();
    const std::string& mine = side.pane.Text();
    const std::string theirs = fileText(window.editor, side);
    const auto left = linesWithEnds(mine);
    const auto right = linesWithEnds(theirs);
    window.Hunks = differingLines(left, right);
    window.Rows = rowsSideBySide(left.size(), right.size(), window.Hunks);
    window.LeftLines = shownLines(left);
    window.RightLines = shownLines(right);
    window.Left.Caption = side.FileName + " in this window";
    window.Right.Caption = side.FileName + " on the disk";
    window.Current = window.Hunks.empty() ? -1 : 0;
    showCount(window);
}

std::size_t firstRowOf(const Differences& window, int hunk)
{
    const auto row =
        std::ranges::find_if(window.Rows, [=](const LineRow& r) { return r.hunk == static_cast<std::size_t>(hunk); });
    return static_cast<std::size_t>(row - window.Rows.begin());
}

} // namespace tarvex
