#pragma once

#include "composer/insert_options.h"

#include <string>
#include <string_view>

namespace tarvex {

/// A statement of one page: the words that have a colour of their own, and the values behind them.
struct StatementText {
    std::string keyword;
    std::string values = {};
};

enum class LineEnd { None, Behind };
/// Puts a text (UTF-8) into the pane of the selected tab as one edit: in `colour` when insertions have colours, else
/// plain. A text that begins with "BTN" or "RKR" begins a line.
void insertText(InsertOptions& window, const std::string& text, Colour colour, LineEnd lineEnd = LineEnd::None);
/// Puts a statement on a line of its own, the keyword in its colour and the values plain; with `CompTabsAddCr` the line
/// is ended.
void insertStatement(InsertOptions& window, const StatementText& statement);
/// Opens a new line at the caret.
void insertLineEnd(InsertOptions& window);

/// Values separated by single blanks; an empty one leaves its blank.
template <typename Fields> std::string valuesOf(const Fields& fields)
{
    std::string values;
    for (const TextBox& field : fields) {
        if (&field != &*std::begin(fields)) values += ' ';
        values += field.Text.get();
    }
    return values;
}

/// A click on a macro shows where it is used by selecting that place (MacroTab::BeforeClick). Nothing is to be written
/// there: the caret or selection that the user had comes back, unless the user has moved it since.
void leaveShownUse(InsertOptions& window);

/// After an action the keyboard goes back to the document window, if the user wants that.
void returnFocus(InsertOptions& window);

} // namespace tarvex
