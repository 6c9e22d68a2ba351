#pragma once

#include "documents/files/line_differences.h"
#include "documents/pair/editor.h"

#include <string>
#include <vector>

namespace tarvex {

/// The window that shows a document's text and its file side by side.
struct Differences {
    explicit Differences(Editor& theEditor) : editor(theEditor) {}

    Editor& editor;
    tarvex::Form Form;
    Label Left; ///< what stands on either side
    Label Right;
    Label Count; ///< "2 of 5"
    Button Previous;
    Button Next;
    Button Close;

    std::vector<std::string> LeftLines; ///< UTF-8, without line ends
    std::vector<std::string> RightLines;
    std::vector<LineRow> Rows;
    std::vector<LineHunk> Hunks;
    Property<int> Current = -1; ///< the difference that is shown, from 0; -1: there is none
};

void wireDifferences(Differences& window);
/// Compares the document of the selected tab with its file. A file that can't be read counts as empty.
void loadDifferences(Differences& window);
/// The row in which a difference begins.
std::size_t firstRowOf(const Differences& window, int hunk);

} // namespace tarvex
