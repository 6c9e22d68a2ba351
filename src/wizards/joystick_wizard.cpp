#include "wizards/joystick_wizard.h"

#include "documents/editing/undo.h"

namespace tarvex {

namespace {

void selectJoystickTab(Editor& editor)
{
    if (editor.TabStrip1.SelectedItem != editor.joystick.tab) editor.TabStrip1.Select(editor.joystick.tab);
}

void caretToStart(Editor& editor)
{
    selectJoystickTab(editor);
    editor.JoystickText.setSelStart(0);
    editor.joystick.Caret = 0;
    editor.JoystickText.SetFocus();
}

/// Without a question: a beginner's file is a fresh one, and Undo brings back what wasn't.
void clearAndInsertTitle(Editor& editor)
{
    selectJoystickTab(editor);
    writeAsOneLevel(editor.joystick, [&] { editor.JoystickText.setText(""); });
    caretToStart(editor);
    editor.menus.mnuInsertTitle.Click();
}

void showComposer(JoystickWiz& window, const std::function<void()>& show)
{
    window.editor.menus.mnuShowInsertWindow.Click();
    if (show) show();
}

struct Action {
    const char* caption;
    void (*run)(JoystickWiz& window);
    bool needsComposer = false;
};

/// By the indexes of BTNinFrame.
constexpr Action actions[] = {
    {"Open up a macro file", [](JoystickWiz& w) { w.editor.menus.MnuFileMacroLoad.Click(); }},
    {"Give me a new joystick file please", [](JoystickWiz& w) { w.editor.menus.mnuFileNewJoystick.Click(); }},
    {"Save this joystick file please",
     [](JoystickWiz& w) {
         selectJoystickTab(w.editor);
         w.editor.menus.mnuFileSave.Click();
     }},
    {"Show me this Composer thing you're so proud of then", [](JoystickWiz& w) { showComposer(w, {}); }, true},
    {"Put me in the correct position in the joystick file please.", [](JoystickWiz& w) { caretToStart(w.editor); }},
    {"Clear the joystick file and insert a title please", [](JoystickWiz& w) { clearAndInsertTitle(w.editor); }},
    {"Show the Composer and its USE section please", [](JoystickWiz& w) { showComposer(w, w.composer.UseStatements); },
     true},
    {"Let the Composer write a first statement please",
     [](JoystickWiz& w) {
         showComposer(w, w.composer.Statements);
         w.editor.JoystickText.SetFocus();
     },
     true},
    {"Show the Composer and its RATE section please", [](JoystickWiz& w) { showComposer(w, w.composer.Rate); }, true},
    {"Show the Composer with the main Composer tab selected please",
     [](JoystickWiz& w) { showComposer(w, w.composer.MainTab); }, true},
};

} // namespace

JoystickWiz::JoystickWiz(Editor& theEditor) : editor(theEditor)
{
    form.Caption = "The Joystick file wizard";
    form.TopMost = true;
    form.Load = [this] { Form_Load(*this); };
    for (std::size_t index = 0; index < pages.foot.size(); ++index)
        pages.foot.at(index).handler = [this, index] { Command1_Click(*this, index); };
    for (std::size_t index = 0; index < BTNinFrame.size(); ++index) {
        BTNinFrame.at(index).Caption = actions[index].caption;
        BTNinFrame.at(index).handler = [this, index] { BTNinFrame_Click(*this, index); };
    }
}

void Form_Load(JoystickWiz& window)
{
    loadFoot(window.pages, window.editor.operations);
    const bool hasComposer = window.editor.menus.mnuShowInsertWindow.handler != nullptr;
    for (std::size_t index = 0; index < window.BTNinFrame.size(); ++index)
        window.BTNinFrame.at(index).Enabled = hasComposer || !actions[index].needsComposer;
    window.form.markLoaded();
}

void Command1_Click(JoystickWiz& window, std::size_t Index)
{
    footClick(window.pages, window.editor.operations, Index);
}

void BTNinFrame_Click(JoystickWiz& window, std::size_t Index)
{
    const Steps step;
    step([&] { actions[Index].run(window); });
}

} // namespace tarvex
