#pragma once

class QWidget;

namespace tarvex {

class QtDialogues;
struct ViewImage;

/// Lets the file chooser of the image viewer be shown, over `parent`. All of them outlive the dialogues.
void addViewerForms(QtDialogues& dialogues, ViewImage& window, QWidget* parent);

} // namespace tarvex
