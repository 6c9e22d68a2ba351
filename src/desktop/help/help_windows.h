#pragma once

class QWidget;

namespace tarvex {

class Bindings;
class QtDialogues;
struct Help;

/// Makes the tip of the day and the about box known by the names under which showModal shows them. All of these outlive
/// the dialogues.
void addHelpForms(QtDialogues& dialogues, Help& help, QWidget* parent);
/// Makes the windows of the handbook and of the help texts when they are first to be seen.
void makeHelpWhenShown(Help& help, Bindings& bindings, QWidget* parent);

} // namespace tarvex
