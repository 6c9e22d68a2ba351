#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// A piece of a page, in the order in which they stand below each other.
struct WizardBlock {
    enum class Kind {
        Paragraph,
        Item,    ///< of a list
        Example, ///< lines of a file
        Button,  ///< `number` is its index in the window's array of action buttons
        Picture, ///< `text` is the name of a drawing, and those of the controls to be marked in it
        Macro,   ///< the boxes for a macro's name and keys, with the preview
        Headings ///< the list of heading names
    };
    Kind kind;
    std::string text; ///< UTF-8
    int number = 0;
    bool operator==(const WizardBlock&) const = default;
};

struct WizardPage {
    std::string title;
    std::vector<WizardBlock> blocks;
};

/// Reads the pages of a window from its text, UTF-8:
///   "= Title"        begins a page; what precedes the first one is skipped
///   "* words"        an item of a list
///   "    BTN S1 a"   four blanks: a line of an example; neighbours belong together
///   "[button 4]", "[picture tqs T7]", "[macro]", "[headings]"   the other pieces
///   other lines      a paragraph or item that goes on until a blank line or another piece
std::vector<WizardPage> readWizardPages(std::string_view text);

} // namespace tarvex
