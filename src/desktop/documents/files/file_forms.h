#pragma once

class QWidget;

namespace tarvex {

struct Differences;
class QtDialogues;

/// Lets the window with the differences of a document and its file be shown, over `parent`. All of them outlive the
/// dialogues.
void addFileForms(QtDialogues& dialogues, Differences& differences, QWidget* parent);

} // namespace tarvex
