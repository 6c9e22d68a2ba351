#pragma once

#include "documents/text/pane.h"
#include "language/pass_runner.h"
#include "shell/errors.h"
#include "shell/mum.h"
#include "shell/settings.h"

#include <functional>
#include <string>

namespace tarvex {

/// What the colouring of a template works on.
struct TemplateColouring {
    Pane& TemplateText;
    std::string name; ///< of the template, as Text1 has it
    std::function<void()> mnuTextToBlack;
    const Settings& settings;
    ErrorRecord& errors;
    Mum& mum;
    std::function<void(const Hold&)> held;
};

/// Colours a template by the joystick file's rules, with the differences in its list of passes. The caret
/// stays. An empty template is only reported.
void ColourTemplateText(const TemplateColouring& work);

} // namespace tarvex
