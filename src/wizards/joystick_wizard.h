#pragma once

#include "documents/pair/editor.h"
#include "shell/help_topics.h"
#include "wizards/page_turner.h"

namespace tarvex {

/// Leads through a first joystick file, and does the steps in the joystick pane.
struct JoystickWiz {
    static constexpr int lastPage = 10;

    explicit JoystickWiz(Editor& theEditor);
    JoystickWiz(const JoystickWiz&) = delete;
    JoystickWiz& operator=(const JoystickWiz&) = delete;

    Editor& editor;
    std::int16_t WindowOpen = 0; ///< 1 while the window is loaded
    ToolForm form{"JoystickWiz", &WindowOpen};
    PageTurner pages{lastPage, helpTopic::joystickWizard, form};
    std::array<Button, 10> BTNinFrame; ///< the actions on the pages

    /// What the Composer, once it is open, shows for this window; none while there is no Composer.
    struct Composer {
        std::function<void()> UseStatements; ///< the USE section
        std::function<void()> Statements;    ///< nothing: it writes a statement and hides
        std::function<void()> Rate;          ///< the RATE section, with 80 in its box
        std::function<void()> MainTab;
    } composer;
};

void Form_Load(JoystickWiz& window);
/// A button of the foot.
void Command1_Click(JoystickWiz& window, std::size_t Index);
/// An action.
void BTNinFrame_Click(JoystickWiz& window, std::size_t Index);

} // namespace tarvex
