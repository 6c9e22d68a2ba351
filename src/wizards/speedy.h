#pragma once

#include "shell/tool_form.h"
#include "wizards/macro_maker.h"

namespace tarvex {

/// The steps of the macro wizard on the tabs of one window, for users who know the way.
struct Speedy {
    explicit Speedy(Editor& theEditor);
    Speedy(const Speedy&) = delete;
    Speedy& operator=(const Speedy&) = delete;

    std::int16_t WindowOpen = 0; ///< 1 while the window is loaded
    ToolForm form{"Speedy", &WindowOpen};
    SSTab SSTab1{"New file", "Headings", "Macros", "Finish"};
    MacroMaker maker;
};

void Form_Load(Speedy& window);

} // namespace tarvex
