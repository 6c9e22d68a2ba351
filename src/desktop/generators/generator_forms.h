#pragma once

class QWidget;

namespace tarvex {

class QtDialogues;
struct Generators;

/// Makes the dialogues known by the names under which showModal shows them. All of these outlive the dialogues.
void addGeneratorForms(QtDialogues& dialogues, Generators& generators, QWidget* parent);

} // namespace tarvex
