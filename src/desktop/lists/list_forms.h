#pragma once

class QWidget;

namespace tarvex {

struct Lists;
class QtDialogues;

/// Lets the dialogues of the lists be shown, over `parent`. All of them outlive the dialogues.
void addListForms(QtDialogues& dialogues, Lists& lists, QWidget* parent);

} // namespace tarvex
