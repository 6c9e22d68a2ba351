#pragma once

#include "documents/pair/editor.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The line that defines a macro: its name, one blank and "=", whatever the case. Null without one.
const std::string* definitionOf(const std::vector<std::string>& lines, std::string_view name);

/// Shows the definition of SelectedMacro in status panel 1 and, where the macro pane can be seen, selects it there.
void ShowMacroKeys(Editor& editor);

} // namespace tarvex
