#pragma once

#include "desktop/form_window.h"
#include "viewer/select_picture_form.h"

class QListWidget;

namespace tarvex {

/// Window of the image viewer's file chooser.
class SelectPictureView : public FormWindow {
    Q_OBJECT
public:
    SelectPictureView(SelectPictureForm& form, QWidget* parent);

private:
    QListWidget* list(ListBox& state, const char* name, Bindings::Runs runs);
    QWidget* preview(SelectPictureForm& form);
};

} // namespace tarvex
